#pragma once

#include "domain/Contacts.h"

#include <QList>
#include <QWidget>

class QLabel;
class QListWidget;
class QPushButton;

namespace tabo {

// The people of the person's vCard file, to take an address from.
class ContactsTab : public QWidget
{
    Q_OBJECT

public:
    explicit ContactsTab(QWidget *parent = nullptr);

    void showContacts(const QString &path, const QList<Contact> &contacts);
    // The remembered file could not be read: the list is emptied and the
    // reason shown in its place.
    void showProblem(const QString &path, const QString &problem);
    QString path() const { return m_path; }
    const Contact *currentContact() const;

Q_SIGNALS:
    void chooseFileRequested();
    void contactChosen();

private:
    QString m_path;
    QList<Contact> m_contacts;
    QLabel *m_file;
    QListWidget *m_list;
    QPushButton *m_use;
};

} // namespace tabo
