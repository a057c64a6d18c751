#pragma once

#include <QMainWindow>

#include <functional>

class QAction;
class QLabel;
class QStackedWidget;

namespace tabo {

class AppController;
class PdfPane;

// The preview of the current document: the rendered PDF with its page
// thumbnails, and the commands that send it on. Rendering runs in the output
// commands; this window shows a busy state until their PDF arrives, and a
// note on what to do when there is no design to render with.
class PreviewWindow : public QMainWindow
{
    Q_OBJECT

public:
    enum class State { Busy, Pdf, NoDesign };

    explicit PreviewWindow(AppController &app, QWidget *parent = nullptr);

    // `showPreview`: closes an open preview, then shows and renders the
    // current document anew. False when nothing is rendered.
    bool showPreview();
    // Shows the window waiting for the rendering that `start` begins (the
    // letters); `start` returns false when it refused.
    bool showRendering(const std::function<bool()> &start);

    State state() const;
    PdfPane *pane() const { return m_pane; }
    QAction *printAction() const { return m_print; }
    QAction *savePdfAction() const { return m_savePdf; }
    QAction *emailAction() const { return m_email; }
    QAction *reminderAction() const { return m_reminder; }
    QAction *slipAction() const { return m_slip; }

Q_SIGNALS:
    void exportRequested(int kind);
    void reminderRequested();
    void slipRequested();

private:
    QAction *addCommand(const QString &icon, const QString &text, const char *name, const QKeySequence &key);
    QWidget *createBusyPage();
    QWidget *createNoDesignPage();
    void setState(State state);
    void pdfReady(const QString &path);
    void busyChanged(bool busy);
    void reinstallDesigns();
    void updateCommands();
    void centreAndShow();

    AppController &m_app;
    QStackedWidget *m_pages;
    PdfPane *m_pane;
    QAction *m_print;
    QAction *m_savePdf;
    QAction *m_email;
    QAction *m_reminder;
    QAction *m_slip;
    bool m_waiting = false;
};

} // namespace tabo
