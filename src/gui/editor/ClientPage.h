#pragma once

#include <QWidget>

class QLineEdit;
class QPushButton;

namespace tabo {

class AddressPopover;
class AppController;
class FieldBinder;
class PlainTextField;
class Record;

// The editor's first page: who the document goes to and what it is about.
class ClientPage : public QWidget
{
    Q_OBJECT

public:
    explicit ClientPage(AppController &app, QWidget *parent = nullptr);

    void showDocument(Record *document);
    void commitPending();
    // Opens or closes the address popover at its button.
    void toggleAddressPopover();
    void focusFirstField();

    AddressPopover *addressPopover() const { return m_popover; }
    QPushButton *addressButton() const { return m_addressButton; }

private:
    FieldBinder *m_binder;
    AddressPopover *m_popover;
    PlainTextField *m_address;
    QLineEdit *m_subject;
    QPushButton *m_addressButton;
};

} // namespace tabo
