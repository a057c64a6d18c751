#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace tabo {

class Interaction;
class OutputCommands;
class Preferences;
class StoreAccess;
class WorkingFiles;
class Record;

// The sample page of a design as its texts are being edited: a new PDF a
// moment after the last change, rendered by the shared PDF engine without
// holding up typing. A design that cannot be rendered as it stands keeps the
// last good page and says why in one line. Also the library's own preview
// (`generatePreview`, `createPDF`, `printPreview`).
class DesignPreview : public QObject
{
    Q_OBJECT

public:
    // From the last change to the start of its rendering.
    static constexpr int kDelayMs = 150;

    DesignPreview(StoreAccess &store, WorkingFiles &files, OutputCommands &outputs, Preferences &prefs,
                  Interaction &ui, QObject *parent = nullptr);

    // The texts being edited; their preview follows after kDelayMs.
    void setTexts(const QString &invoice, const QString &item, const QString &css);
    // Renders what was set at once (the pane's first show).
    void renderNow();
    bool isRendering() const { return m_rendering; }
    // The live preview's file.
    static QString livePdfPath();

    // What keeps these texts from making a page, in one line; empty when
    // nothing does. The web engine forgives most mistakes, so only those
    // that would swallow the rest of the page count.
    static QString problem(const QString &invoice, const QString &item, const QString &css);

    // `generatePreview` and `createPDF`: the sample page of `design` into
    // the working PDF; previewReady follows, or the "Ooops!" alert.
    void generatePreview(const Record *design);
    // `printPreview`: the working PDF to the printer, titled "%@ | %@ | %@"
    // from the company, the sample number and "Invoice".
    bool printPreview();

Q_SIGNALS:
    void ready(const QString &pdfPath);
    void failed(const QString &note);
    void previewReady(const QString &pdfPath);

private:
    QString sampleHtml(const Record *design) const;
    void render();

    StoreAccess &m_access;
    WorkingFiles &m_files;
    OutputCommands &m_outputs;
    Preferences &m_prefs;
    Interaction &m_ui;
    QTimer m_timer;
    QString m_invoice, m_item, m_css;
    bool m_rendering = false;
    bool m_again = false;
};

} // namespace tabo
