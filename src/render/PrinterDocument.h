#pragma once

#include <QColor>
#include <QHash>
#include <QMarginsF>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class QPainter;
class QTextDocument;

namespace tabo {

// A small pagination engine for printed lists such as the account book:
// blocks of rich text with margins are placed page after page, each page
// gets its own copy of the header and footer, and variables written as empty
// tags ("<pageNumber/>") are filled in once the pages are counted. Qt's rich
// text measures each block at its width and draws it into PDF pages.

// One block of rich text (HTML) with the space around and inside it.
struct PrinterItem
{
    QString html;
    double leftMargin = 0;
    double rightMargin = 0;
    double topMargin = 0;
    double bottomMargin = 0; // negative values pull the next block closer
    double horizontalInset = 0;
    double verticalInset = 0;
    bool pageBreakBefore = false;
    QColor backgroundColor; // invalid: none
    double measuredHeight = -1; // the used height, once measured at the page's width
};

// A text placed on a page. Variables are empty tags of their key's name in
// the text as read ("<pageNumber/>"); replacing one keeps the formatting found
// at the tag.
class PrinterTextView
{
public:
    PrinterTextView(const QRectF &frame, const QString &html, double horizontalInset = 0, double verticalInset = 0,
                    const QColor &background = {});
    PrinterTextView(const PrinterTextView &other);
    PrinterTextView &operator=(const PrinterTextView &other);
    ~PrinterTextView();

    QRectF frame() const { return m_frame; }
    void setFrame(const QRectF &frame);
    // The height the text needs at the frame's width, insets included.
    double usedHeight() const;
    QString plainText() const;
    void substituteVariables(const QHash<QString, QString> &values);
    void draw(QPainter &painter) const;
    // Drops the laid-out text; it is made again from the HTML when needed.
    // A book of hundreds of pages would otherwise hold every block's layout.
    void release() const;
    // Lays the text out now, on any thread, ahead of draw().
    void prepare() const;

private:
    QTextDocument &text() const;

    QRectF m_frame;
    double m_horizontalInset;
    double m_verticalInset;
    QColor m_background;
    QString m_html;
    mutable std::unique_ptr<QTextDocument> m_text;
};

class PrinterDocument;

class PrinterPage
{
public:
    PrinterPage(const QSizeF &size, double topMargin, double bottomMargin);

    // Places what fits of `items` from `from` on, in order; returns the index
    // of the first item left for the next page (items.size() when none). A
    // page break is taken once: the item's flag is cleared.
    qsizetype fillWithItems(QList<PrinterItem> &items, qsizetype from, const PrinterDocument &document);
    void substituteVariables(const QHash<QString, QString> &values);
    void draw(QPainter &painter) const;
    const std::vector<PrinterTextView> &views() const { return m_views; }
    void prepare() const;
    // Blocks that could never fit a page and were cut at its foot.
    int clippedBlocks() const { return m_clipped; }

private:
    QSizeF m_size;
    double m_topMargin;
    double m_bottomMargin;
    std::vector<PrinterTextView> m_views;
    int m_clipped = 0;
};

class PrinterDocument
{
public:
    explicit PrinterDocument(QList<PrinterItem> items);

    QSizeF pageSize{595, 842};
    double topMargin = 0;
    double bottomMargin = 0;
    std::optional<PrinterTextView> headerView;
    std::optional<PrinterTextView> footerView; // placed at the page's foot

    // Once: build the pages, then number them.
    void layout();
    void substituteVariables(const QHash<QString, QString> &values);
    const std::vector<PrinterPage> &pages();
    // Every page into a PDF file. With `margins` each page is scaled to fit
    // inside them, centred, as a printer places a page on paper.
    bool writePdf(const QString &path, const QString &title = {}, const QMarginsF &margins = {});

private:
    void build();
    void paginate();

    QList<PrinterItem> m_items;
    std::vector<PrinterPage> m_pages;
    bool m_layouted = false;
};

} // namespace tabo
