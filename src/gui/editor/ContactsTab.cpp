#include "gui/editor/ContactsTab.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tabo {

ContactsTab::ContactsTab(QWidget *parent)
    : QWidget(parent)
    , m_file(new QLabel(tr("No vCard file chosen yet."), this))
    , m_list(new QListWidget(this))
    , m_use(new QPushButton(tr("Use Contact"), this))
{
    m_file->setForegroundRole(QPalette::PlaceholderText);
    m_file->setWordWrap(true);
    m_list->setObjectName(QStringLiteral("contactList"));
    m_list->setAccessibleName(tr("Contacts"));
    m_list->setMinimumHeight(fontMetrics().height() * 10);
    m_use->setObjectName(QStringLiteral("useContactButton"));
    m_use->setEnabled(false);
    auto *choose = new QPushButton(tr("Choose vCard File…"), this);
    choose->setObjectName(QStringLiteral("chooseVCardButton"));

    auto *top = new QHBoxLayout;
    top->addWidget(m_file, 1);
    top->addWidget(choose);
    auto *bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(m_use);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_list);
    layout->addLayout(bottom);

    connect(choose, &QPushButton::clicked, this, &ContactsTab::chooseFileRequested);
    connect(m_use, &QPushButton::clicked, this, &ContactsTab::contactChosen);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &ContactsTab::contactChosen);
    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) { m_use->setEnabled(row >= 0); });
}

void ContactsTab::showContacts(const QString &path, const QList<Contact> &contacts)
{
    m_path = path;
    m_contacts = contacts;
    m_file->setText(QFileInfo(path).fileName());
    m_file->setToolTip(path);
    m_list->clear();
    for (const Contact &c : contacts) {
        QString line = c.displayName();
        if (!c.city.isEmpty())
            line += QStringLiteral(" — ") + c.city;
        m_list->addItem(line);
    }
    if (!contacts.isEmpty())
        m_list->setCurrentRow(0);
}

void ContactsTab::showProblem(const QString &path, const QString &problem)
{
    m_path = path;
    m_contacts.clear();
    m_list->clear();
    m_file->setText(problem);
    m_file->setToolTip(path);
}

const Contact *ContactsTab::currentContact() const
{
    const int row = m_list->currentRow();
    return row >= 0 && row < m_contacts.size() ? &m_contacts.at(row) : nullptr;
}

} // namespace tabo
