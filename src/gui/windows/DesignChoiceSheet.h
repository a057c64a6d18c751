#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;
class QStackedWidget;

namespace tabo {

class AppController;
class PdfPane;

// Picks the design documents are printed with: the library's designs in a
// list, and the current document rendered through the one selected. OK makes
// the selection the default design.
class DesignChoiceSheet : public QDialog
{
    Q_OBJECT

public:
    explicit DesignChoiceSheet(AppController &app, QWidget *parent = nullptr);

    // Lists the designs and shows the sheet on the current design. False
    // (with the commands' alert) when there are none.
    bool begin();

    QListWidget *list() const { return m_list; }
    PdfPane *pane() const { return m_pane; }
    QPushButton *okButton() const { return m_ok; }
    bool isRendering() const { return m_rendering; }

    // Makes the selected design the one documents are printed with.
    void accept() override;

private:
    // `selectDesign`
    void select(int row);
    // `createTemplatePDF`
    void designPreviewReady(const QString &path);
    void busyChanged(bool busy);
    void showRendered();
    int initialRow() const;

    AppController &m_app;
    QListWidget *m_list;
    QStackedWidget *m_pages;
    PdfPane *m_pane;
    QPushButton *m_ok;
    bool m_rendering = false;
    bool m_filling = false;
};

} // namespace tabo
