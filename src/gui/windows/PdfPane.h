#pragma once

#include <QWidget>

class QListWidget;
class QPdfDocument;
class QPdfView;

namespace tabo {

// A PDF file on screen, with an optional strip of page thumbnails beside it
// that jumps to the page clicked. The file is read into memory, so the next
// rendering may replace it while it is shown.
class PdfPane : public QWidget
{
    Q_OBJECT

public:
    explicit PdfPane(QWidget *parent = nullptr);
    ~PdfPane() override;

    // False (and an empty view) when the file is missing or not a PDF.
    bool load(const QString &path);
    void clear();
    bool isEmpty() const;
    int pageCount() const;

    void setThumbnailsVisible(bool visible);
    bool thumbnailsVisible() const;

    void setSinglePage(bool single);
    // The whole page in the view, following the window's size.
    void fit();
    // Follows the pane's width: a page taller than the pane scrolls.
    void fitToWidth();
    // One step closer than now; from "fit" this is the page's full width.
    void zoomInOnce();

    QPdfView *view() const { return m_view; }
    QListWidget *thumbnails() const { return m_thumbs; }
    QPdfDocument *document() const { return m_doc; }

private:
    void buildThumbnails();
    void showPage(int page);
    void updateScrollBars();

    QPdfDocument *m_doc;
    QPdfView *m_view;
    QListWidget *m_thumbs;
    bool m_thumbsWanted = false;
};

} // namespace tabo
