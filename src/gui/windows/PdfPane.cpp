#include "gui/windows/PdfPane.h"

#include <QBuffer>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QListWidget>
#include <QPainter>
#include <QPdfDocument>
#include <QPdfPageNavigator>
#include <QPdfView>

namespace tabo {

namespace {

constexpr int ThumbnailWidth = 110;
constexpr qreal ZoomStep = 1.25;

} // namespace

PdfPane::PdfPane(QWidget *parent)
    : QWidget(parent)
    , m_doc(new QPdfDocument(this))
    , m_view(new QPdfView(this))
    , m_thumbs(new QListWidget(this))
{
    m_view->setObjectName(QStringLiteral("pdfView"));
    m_view->setDocument(m_doc);
    // Fitting makes room for the page spacing but not for the margins above
    // and below the page: with the spacing equal to both, a fitted page
    // leaves the same gap above and below (the scroll bar is then hidden).
    m_view->setDocumentMargins(QMargins(12, 12, 12, 12));
    m_view->setPageSpacing(24);
    m_view->setBackgroundRole(QPalette::Dark);

    m_thumbs->setObjectName(QStringLiteral("pdfThumbnails"));
    m_thumbs->setAccessibleName(tr("Pages"));
    m_thumbs->setViewMode(QListView::IconMode);
    m_thumbs->setFlow(QListView::TopToBottom);
    m_thumbs->setWrapping(false);
    m_thumbs->setMovement(QListView::Static);
    m_thumbs->setResizeMode(QListView::Adjust);
    m_thumbs->setSpacing(6);
    m_thumbs->setIconSize(QSize(ThumbnailWidth, ThumbnailWidth * 3 / 2));
    m_thumbs->setFixedWidth(ThumbnailWidth + 40);
    m_thumbs->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_thumbs->hide();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_thumbs);
    layout->addWidget(m_view, 1);

    connect(m_thumbs, &QListWidget::currentRowChanged, this, &PdfPane::showPage);
    connect(m_view->pageNavigator(), &QPdfPageNavigator::currentPageChanged, this, [this](int page) {
        if (page >= 0 && page < m_thumbs->count() && m_thumbs->currentRow() != page)
            m_thumbs->setCurrentRow(page);
    });
}

PdfPane::~PdfPane()
{
    // The document reads from the buffer until it is closed.
    m_view->setDocument(nullptr);
    m_doc->close();
}

bool PdfPane::load(const QString &path)
{
    clear();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // In memory: the working file is deleted and rewritten by every rendering.
    auto *buffer = new QBuffer(m_doc);
    buffer->setData(file.readAll());
    buffer->open(QIODevice::ReadOnly);
    m_doc->load(buffer);
    if (m_doc->status() != QPdfDocument::Status::Ready || m_doc->pageCount() < 1) {
        clear();
        return false;
    }
    m_view->pageNavigator()->jump(0, QPointF(), 0);
    buildThumbnails();
    return true;
}

void PdfPane::clear()
{
    m_thumbs->clear();
    m_doc->close();
    const auto buffers = m_doc->findChildren<QBuffer *>(QString(), Qt::FindDirectChildrenOnly);
    for (QBuffer *buffer : buffers)
        buffer->deleteLater();
    m_thumbs->setVisible(false);
}

bool PdfPane::isEmpty() const
{
    return m_doc->status() != QPdfDocument::Status::Ready || m_doc->pageCount() < 1;
}

int PdfPane::pageCount() const
{
    return isEmpty() ? 0 : m_doc->pageCount();
}

void PdfPane::setThumbnailsVisible(bool visible)
{
    m_thumbsWanted = visible;
    m_thumbs->setVisible(visible && !isEmpty());
}

bool PdfPane::thumbnailsVisible() const
{
    return m_thumbs->isVisible();
}

void PdfPane::setSinglePage(bool single)
{
    m_view->setPageMode(single ? QPdfView::PageMode::SinglePage : QPdfView::PageMode::MultiPage);
    updateScrollBars();
}

void PdfPane::fit()
{
    m_view->setZoomMode(QPdfView::ZoomMode::FitInView);
    updateScrollBars();
}

void PdfPane::fitToWidth()
{
    m_view->setZoomMode(QPdfView::ZoomMode::FitToWidth);
    updateScrollBars();
}

void PdfPane::zoomInOnce()
{
    // Fitting the width keeps following the window's size, which a fixed
    // factor would not.
    if (m_view->zoomMode() == QPdfView::ZoomMode::FitInView) {
        m_view->setZoomMode(QPdfView::ZoomMode::FitToWidth);
    } else {
        const qreal factor = m_view->zoomMode() == QPdfView::ZoomMode::Custom ? m_view->zoomFactor() : 1.0;
        m_view->setZoomMode(QPdfView::ZoomMode::Custom);
        m_view->setZoomFactor(factor * ZoomStep);
    }
    updateScrollBars();
}

void PdfPane::updateScrollBars()
{
    // One whole page has nothing to scroll to, though the view's own layout
    // is a few pixels taller than the page it fitted.
    const bool whole
        = m_view->pageMode() == QPdfView::PageMode::SinglePage && m_view->zoomMode() == QPdfView::ZoomMode::FitInView;
    m_view->setVerticalScrollBarPolicy(whole ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

void PdfPane::buildThumbnails()
{
    m_thumbs->clear();
    const int pages = m_doc->pageCount();
    for (int page = 0; page < pages; ++page) {
        const QSizeF points = m_doc->pagePointSize(page);
        const int height
            = points.width() > 0 ? qRound(ThumbnailWidth * points.height() / points.width()) : ThumbnailWidth;
        const qreal ratio = devicePixelRatioF();
        QImage image = m_doc->render(page, QSize(ThumbnailWidth, height) * ratio);
        // A page is white paper even where the design paints nothing.
        QImage paper(image.size(), QImage::Format_RGB32);
        paper.fill(Qt::white);
        {
            QPainter painter(&paper);
            painter.drawImage(0, 0, image);
            // White paper on a white list needs an edge.
            painter.setPen(QColor(0, 0, 0, 70));
            painter.drawRect(paper.rect().adjusted(0, 0, -1, -1));
        }
        paper.setDevicePixelRatio(ratio);
        const QPixmap pixmap = QPixmap::fromImage(paper);
        // The selected page is marked by its number; the page itself stays
        // as it will print rather than tinted.
        QIcon icon(pixmap);
        icon.addPixmap(pixmap, QIcon::Selected);
        auto *item = new QListWidgetItem(icon, QString::number(page + 1), m_thumbs);
        item->setTextAlignment(Qt::AlignHCenter);
    }
    m_thumbs->setCurrentRow(0);
    m_thumbs->setVisible(m_thumbsWanted && pages > 0);
}

void PdfPane::showPage(int page)
{
    if (page >= 0 && page < m_doc->pageCount() && m_view->pageNavigator()->currentPage() != page)
        m_view->pageNavigator()->jump(page, QPointF(), 0);
}

} // namespace tabo
