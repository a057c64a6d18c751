#include "render/PrinterDocument.h"

#include "prefs/ProtectedFiles.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QDebug>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>
#include <QtConcurrent/QtConcurrentMap>
#include <QtConcurrent/QtConcurrentRun>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(PrinterDocument)
};
} // namespace

namespace tabo {

namespace {

QString tagOf(const QString &key)
{
    return QStringLiteral("<%1/>").arg(key);
}

} // namespace

PrinterTextView::PrinterTextView(const QRectF &frame, const QString &html, double horizontalInset,
                                 double verticalInset, const QColor &background)
    : m_frame(frame)
    , m_horizontalInset(horizontalInset)
    , m_verticalInset(verticalInset)
    , m_background(background)
    , m_html(html)
{
}

PrinterTextView::PrinterTextView(const PrinterTextView &other)
    : m_frame(other.m_frame)
    , m_horizontalInset(other.m_horizontalInset)
    , m_verticalInset(other.m_verticalInset)
    , m_background(other.m_background)
    , m_html(other.m_html)
{
}

PrinterTextView &PrinterTextView::operator=(const PrinterTextView &other)
{
    if (this != &other) {
        m_frame = other.m_frame;
        m_horizontalInset = other.m_horizontalInset;
        m_verticalInset = other.m_verticalInset;
        m_background = other.m_background;
        m_html = other.m_html;
        m_text.reset();
    }
    return *this;
}

PrinterTextView::~PrinterTextView() = default;

void PrinterTextView::release() const
{
    m_text.reset();
}

void PrinterTextView::prepare() const
{
    text().size();
}

QTextDocument &PrinterTextView::text() const
{
    if (!m_text) {
        m_text = std::make_unique<QTextDocument>();
        m_text->setDocumentMargin(0);
        m_text->setHtml(m_html);
        m_text->setTextWidth(std::max(1.0, m_frame.width() - 2 * m_horizontalInset));
    }
    return *m_text;
}

void PrinterTextView::setFrame(const QRectF &frame)
{
    m_frame = frame;
    if (m_text)
        m_text->setTextWidth(std::max(1.0, frame.width() - 2 * m_horizontalInset));
}

double PrinterTextView::usedHeight() const
{
    return text().size().height() + 1 + 2 * m_verticalInset;
}

QString PrinterTextView::plainText() const
{
    return text().toPlainText();
}

void PrinterTextView::substituteVariables(const QHash<QString, QString> &values)
{
    // A tag reads "<key/>" in the text, so its HTML holds "/&gt;": without
    // that there is nothing to fill in, and nothing needs laying out.
    if (!m_html.contains(QLatin1String("/&gt;")))
        return;
    QTextDocument &doc = text();
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const QString tag = tagOf(it.key());
        // A value holding its own tag would put it back for ever.
        const QString value = it.value().contains(tag) ? Tr::tr("Error: Recursion") : it.value();
        for (QTextCursor found = doc.find(tag); !found.isNull(); found = doc.find(tag, found)) {
            const QTextCharFormat format = found.charFormat();
            found.insertText(value, format);
        }
    }
    m_html = doc.toHtml();
    release();
}

void PrinterTextView::draw(QPainter &painter) const
{
    painter.save();
    if (m_background.isValid())
        painter.fillRect(m_frame, m_background);
    painter.translate(m_frame.topLeft() + QPointF(m_horizontalInset, m_verticalInset));
    const QRectF clip(0, 0, m_frame.width() - 2 * m_horizontalInset, m_frame.height() - 2 * m_verticalInset);
    painter.setClipRect(clip);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = clip;
    context.palette.setColor(QPalette::Text, Qt::black);
    text().documentLayout()->draw(&painter, context);
    painter.restore();
    release();
}

PrinterPage::PrinterPage(const QSizeF &size, double topMargin, double bottomMargin)
    : m_size(size)
    , m_topMargin(topMargin)
    , m_bottomMargin(bottomMargin)
{
}

qsizetype PrinterPage::fillWithItems(QList<PrinterItem> &items, qsizetype from, const PrinterDocument &document)
{
    double footerHeight = 0;
    if (document.headerView)
        m_views.push_back(*document.headerView);
    if (document.footerView) {
        PrinterTextView footer = *document.footerView;
        const QRectF f = footer.frame();
        footerHeight = f.height();
        footer.setFrame(QRectF(f.x(), m_size.height() - f.height(), f.width(), f.height()));
        m_views.push_back(footer);
    }
    const double limit = m_size.height() - m_bottomMargin - footerHeight;
    double cursor = m_topMargin;
    bool placed = false;
    for (qsizetype i = from; i < items.size(); ++i) {
        PrinterItem &item = items[i];
        if (item.pageBreakBefore) {
            // Breaks once, even on a page still empty.
            item.pageBreakBefore = false;
            return i;
        }
        const double width = m_size.width() - item.leftMargin - item.rightMargin;
        PrinterTextView view(QRectF(item.leftMargin, 0, width, 0), item.html, item.horizontalInset, item.verticalInset,
                             item.backgroundColor);
        const double height = item.measuredHeight >= 0 ? item.measuredHeight : view.usedHeight();
        view.release();
        const double top = cursor + item.topMargin;
        if (top + height > limit) {
            if (placed)
                return i;
            // A block taller than a free page would never fit: it stands alone
            // on its page, cut at the foot, so that building ends.
            qWarning("A printed block of %.0f points is taller than the page; it is cut.", height);
            ++m_clipped;
            view.setFrame(QRectF(item.leftMargin, top, width, std::max(0.0, limit - top)));
            m_views.push_back(view);
            return i + 1;
        }
        view.setFrame(QRectF(item.leftMargin, top, width, height));
        m_views.push_back(view);
        placed = true;
        cursor = top + height + item.bottomMargin;
    }
    return items.size();
}

void PrinterPage::substituteVariables(const QHash<QString, QString> &values)
{
    for (PrinterTextView &view : m_views)
        view.substituteVariables(values);
}

void PrinterPage::prepare() const
{
    for (const PrinterTextView &view : m_views)
        view.prepare();
}

void PrinterPage::draw(QPainter &painter) const
{
    for (const PrinterTextView &view : m_views)
        view.draw(painter);
}

PrinterDocument::PrinterDocument(QList<PrinterItem> items)
    : m_items(std::move(items))
{
}

void PrinterDocument::layout()
{
    if (m_layouted)
        return;
    m_layouted = true;
    build();
    paginate();
}

void PrinterDocument::build()
{
    // Measuring is most of the work and each block stands alone, so every
    // core measures (Qt 6's rich text and fonts may be used off the GUI thread).
    QtConcurrent::blockingMap(m_items, [this](PrinterItem &item) {
        const double width = pageSize.width() - item.leftMargin - item.rightMargin;
        item.measuredHeight = PrinterTextView(QRectF(0, 0, width, 0), item.html, item.horizontalInset,
                                              item.verticalInset).usedHeight();
    });
    // The very first page is made even for no items: the heading of an empty
    // list is still printed. Pages go by index: copying what is left for each
    // page would copy a long list hundreds of times.
    qsizetype next = 0;
    do {
        PrinterPage page(pageSize, topMargin, bottomMargin);
        next = page.fillWithItems(m_items, next, *this);
        m_pages.push_back(std::move(page));
    } while (next < m_items.size());
}

void PrinterDocument::paginate()
{
    const QString count = QString::number(qlonglong(m_pages.size()));
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        m_pages[i].substituteVariables(
            {{QStringLiteral("pageNumber"), QString::number(qlonglong(i + 1))}, {QStringLiteral("pageCount"), count}});
}

void PrinterDocument::substituteVariables(const QHash<QString, QString> &values)
{
    layout();
    for (PrinterPage &page : m_pages)
        page.substituteVariables(values);
}

const std::vector<PrinterPage> &PrinterDocument::pages()
{
    layout();
    return m_pages;
}

bool PrinterDocument::writePdf(const QString &path, const QString &title, const QMarginsF &margins)
{
    if (const Error refused = ProtectedFiles::check(path)) {
        qWarning().noquote() << refused.text;
        return false;
    }
    layout();
    QPdfWriter writer(path);
    writer.setTitle(title);
    writer.setResolution(72); // one unit a point, as the blocks are measured
    writer.setPageSize(QPageSize(pageSize, QPageSize::Point, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    const QSizeF room(pageSize.width() - margins.left() - margins.right(),
                      pageSize.height() - margins.top() - margins.bottom());
    const double scale = std::min(room.width() / pageSize.width(), room.height() / pageSize.height());
    const QPointF origin(margins.left() + (room.width() - pageSize.width() * scale) / 2,
                         margins.top() + (room.height() - pageSize.height() * scale) / 2);
    // The next page is laid out on another core while this one is drawn;
    // the drawing itself stays on this thread with the writer.
    const auto prepare = [this](std::size_t i) {
        return i < m_pages.size() ? QtConcurrent::run([page = &m_pages[i]] { page->prepare(); }) : QFuture<void>();
    };
    QFuture<void> next = prepare(0);
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        next.waitForFinished();
        next = prepare(i + 1);
        if (i > 0 && !writer.newPage()) {
            next.waitForFinished();
            return false;
        }
        painter.save();
        painter.translate(origin);
        painter.scale(scale, scale);
        m_pages[i].draw(painter);
        painter.restore();
    }
    return painter.end();
}

} // namespace tabo
