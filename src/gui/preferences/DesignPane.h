#pragma once

#include <QPlainTextEdit>
#include <QTimer>
#include <QWidget>

#include <array>

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;
class QTabWidget;

namespace tabo {

class AppController;
class DesignPreview;
class HintLabel;
class PdfPane;
class Record;
class SyntaxColorizer;

// The design editors' text view: a fixed-pitch font ("Menlo" where it
// exists, else the desktop's monospace font) for all of its text.
class QVPreferencesTextView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit QVPreferencesTextView(QWidget *parent = nullptr);
    static QFont editorFont();
};

// The design library of the preferences: the list of designs with its
// commands, the page, row and stylesheet editors of the selected design,
// and its sample page beside them, following the typing.
class DesignPane : public QWidget
{
    Q_OBJECT

public:
    enum Editor { Page, Row, Stylesheet };

    explicit DesignPane(AppController &app, QWidget *parent = nullptr);
    ~DesignPane() override;

    // Fills the list from the store, selecting `selectedDesign`.
    void reload();
    // The pane came on screen: its preview is rendered now.
    void paneShown();
    // Paper, labels or region changed: the sample page follows.
    void preferencesChanged();
    // Saves the store and writes `selectedDesign`.
    void saveSelection();

    Record *selectedDesign() const;
    QListWidget *list() const { return m_list; }
    QPushButton *button(const char *name) const;
    QVPreferencesTextView *editor(Editor which) const { return m_editors[which]; }
    void showEditor(Editor which);
    SyntaxColorizer *colorizer(Editor which) const { return m_colorizers[which]; }
    PdfPane *livePreview() const { return m_live; }
    HintLabel *previewNote() const { return m_note; }
    DesignPreview *preview() const { return m_preview; }
    QWidget *previewWindow() const { return m_previewWindow; }

    // `addDesign`, `deleteDesign`, `makeDefaultDesign`, `importDesign`,
    // `exportDesign` and `previewDesign` (which toggles its window).
    void addDesign();
    void deleteDesign();
    void makeDefaultDesign();
    void importDesign();
    void exportDesign();
    void previewDesign();

private:
    QPushButton *addButton(const QString &text, const char *name, void (DesignPane::*slot)());
    void fillList(const Record *select);
    void showDesign(Record *design);
    void editorChanged(Editor which);
    void titleEdited(QListWidgetItem *item);
    void updateButtons();
    void livePdfReady(const QString &path);
    void save();

    AppController &m_app;
    QListWidget *m_list;
    QList<QPushButton *> m_buttons;
    QTabWidget *m_tabs;
    std::array<QVPreferencesTextView *, 3> m_editors {};
    std::array<SyntaxColorizer *, 3> m_colorizers {};
    PdfPane *m_live;
    HintLabel *m_note;
    DesignPreview *m_preview;
    QWidget *m_previewWindow = nullptr;
    PdfPane *m_previewPane = nullptr;
    Record *m_shown = nullptr;
    QTimer m_saveTimer;
    bool m_loading = false;
};

} // namespace tabo
