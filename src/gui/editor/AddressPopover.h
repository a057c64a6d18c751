#pragma once

#include <array>

#include "gui/editor/Popover.h"

class QLineEdit;
class QPushButton;
class QTabWidget;
class QTreeWidget;

namespace tabo {

class AppController;
class ContactsTab;
class PlainTextField;
struct AddressFields;

// The client of the current document: typed in, taken from the vCard file's
// contacts or from the remembered addresses.
class AddressPopover : public Popover
{
    Q_OBJECT

public:
    enum Tab { AddressTab, ContactsTabIndex, RecentTab };

    explicit AddressPopover(AppController &app, QWidget *parent = nullptr);

    QTabWidget *tabs() const { return m_tabs; }

    // The name parts that the client-name order (`clientNamePatternTag`)
    // joined into `name`, so that taking the address over again keeps it.
    static void splitName(qint64 tag, const QString &title, const QString &name, QString *first, QString *last);

Q_SIGNALS:
    // The address went into the document; the popover has closed.
    void addressUsed();

protected:
    void prepare() override;

private:
    QWidget *createAddressPage();
    QWidget *createEInvoicePage();
    QWidget *createRecentPage();
    void fillRecent();
    void loadRememberedFile();
    void setFields(const AddressFields &fields);
    AddressFields fields() const;
    void chooseFile();
    void useContact();
    void useRecent();
    void useAddress();
    void alert(const QString &message);

    AppController &m_app;
    QTabWidget *m_tabs;
    PlainTextField *m_address = nullptr;
    QLineEdit *m_clientNumber = nullptr;
    QLineEdit *m_email = nullptr;
    QLineEdit *m_vatID = nullptr;
    QLineEdit *m_title = nullptr;
    QLineEdit *m_first = nullptr;
    QLineEdit *m_last = nullptr;
    std::array<QLineEdit *, 7> m_buyer {};
    ContactsTab *m_contacts = nullptr;
    QTreeWidget *m_recent = nullptr;
    QPushButton *m_useRecent = nullptr;
};

} // namespace tabo
