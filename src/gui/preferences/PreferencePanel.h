#pragma once

#include "prefs/Preferences.h"

#include <QList>
#include <QMainWindow>

class QAction;
class QActionGroup;
class QLabel;
class QLineEdit;
class QToolBar;
class QVBoxLayout;

namespace tabo {

class AppController;
class DesignPane;
class FileMenu;
class LogoWell;
class PrefsBinder;

// The preferences window: a toolbar of eight panes, each editing one group
// of keys. Values are written as they are typed; closing the window (or
// leaving it for another) saves the store and the design selection.
class QVPreferencePanel : public QMainWindow
{
    Q_OBJECT

public:
    enum Pane { Company, Invoice, Taxes, Template, Design, Region, Clients, Data, PaneCount };

    QVPreferencePanel(AppController &app, FileMenu *fileMenu, QWidget *parent = nullptr);
    ~QVPreferencePanel() override;

    // Shows the window on its first pane.
    void showPanel();
    void selectPane(Pane pane);
    Pane currentPane() const { return m_current; }
    QWidget *paneWidget(Pane pane) const { return m_panes.value(pane); }
    QAction *paneAction(Pane pane) const { return m_actions.value(pane); }
    DesignPane *designPane() const { return m_designPane; }
    PrefsBinder *binder() const { return m_binder; }

    static QString paneLabel(Pane pane);
    static QString paneTitle(Pane pane);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    QWidget *createCompanyPane();
    QWidget *createInvoicePane();
    QWidget *createTaxesPane();
    QWidget *createTemplatePane();
    QWidget *createRegionPane();
    QWidget *createClientsPane();
    QWidget *createDataPane();
    void saveState();
    void updateDateExample();
    void updateStorePath();
    void installLanguage();

    AppController &m_app;
    FileMenu *m_fileMenu;
    PrefsBinder *m_binder;
    QToolBar *m_toolbar;
    QActionGroup *m_group;
    QList<QAction *> m_actions;
    QList<QWidget *> m_panes;
    QWidget *m_holder;
    QVBoxLayout *m_holderLayout;
    bool m_sized = false; // the one size is set on the first pane shown
    DesignPane *m_designPane = nullptr;
    LogoWell *m_logo = nullptr;
    QLabel *m_dateExample = nullptr;
    QLineEdit *m_storePath = nullptr;
    Pane m_current = PaneCount;
};

} // namespace tabo
