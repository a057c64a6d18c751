#include "gui/editor/AddressPopover.h"

#include "app/AppController.h"
#include "app/DocumentCommands.h"
#include "app/Interaction.h"
#include "domain/Contacts.h"
#include "domain/Record.h"
#include "gui/editor/ContactsTab.h"
#include "gui/widgets/PlainTextField.h"
#include "prefs/Preferences.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <QCoreApplication>
#include <algorithm>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(AddressPopover)
};
} // namespace

namespace tabo {

namespace {
using P = Preferences;

QLineEdit *lineEdit(QWidget *parent, const char *name)
{
    auto *edit = new QLineEdit(parent);
    edit->setObjectName(QLatin1String(name));
    return edit;
}
} // namespace

AddressPopover::AddressPopover(AppController &app, QWidget *parent)
    : Popover(parent)
    , m_app(app)
    , m_tabs(new QTabWidget(this))
    , m_contacts(new ContactsTab(this))
{
    setObjectName(QStringLiteral("addressPopover"));
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(createAddressPage(), tr("Address"));
    m_tabs->addTab(m_contacts, tr("Contacts"));
    m_tabs->addTab(createRecentPage(), tr("Recent"));
    m_tabs->addTab(createEInvoicePage(), tr("E-invoice"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 10, 10);
    layout->addWidget(m_tabs);
    connect(m_contacts, &ContactsTab::chooseFileRequested, this, &AddressPopover::chooseFile);
    connect(m_contacts, &ContactsTab::contactChosen, this, &AddressPopover::useContact);
}

QWidget *AddressPopover::createAddressPage()
{
    auto *page = new QWidget(this);
    auto *form = new QFormLayout(page);
    m_address = new PlainTextField(page);
    m_address->setObjectName(QStringLiteral("popoverAddress"));
    m_address->setVisibleLines(5);
    m_address->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 24);
    m_clientNumber = lineEdit(page, "popoverClientNumber");
    m_email = lineEdit(page, "popoverEmail");
    m_vatID = lineEdit(page, "popoverVATID");
    m_title = lineEdit(page, "popoverTitle");
    m_first = lineEdit(page, "popoverFirstName");
    m_last = lineEdit(page, "popoverLastName");
    auto *generate = new QPushButton(tr("Generate"), page);
    generate->setObjectName(QStringLiteral("generateClientNumber"));
    auto *numberRow = new QHBoxLayout;
    m_clientNumber->setAccessibleName(tr("Client number:"));
    numberRow->addWidget(m_clientNumber, 1);
    numberRow->addWidget(generate);
    form->addRow(tr("Address:"), m_address);
    form->addRow(tr("Client number:"), numberRow);
    form->addRow(tr("E-mail:"), m_email);
    form->addRow(tr("VAT ID:"), m_vatID);
    form->addRow(tr("Salutation:"), m_title);
    form->addRow(tr("First name:"), m_first);
    form->addRow(tr("Last name:"), m_last);
    auto *use = new QPushButton(tr("Use Address"), page);
    use->setObjectName(QStringLiteral("useAddressButton"));
    use->setDefault(true);
    form->addRow(QString(), use);
    connect(generate, &QPushButton::clicked, this,
        [this] { m_clientNumber->setText(m_app.clientNumberString()); });
    connect(use, &QPushButton::clicked, this, &AddressPopover::useAddress);
    return page;
}

QWidget *AddressPopover::createRecentPage()
{
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    m_recent = new QTreeWidget(page);
    m_recent->setObjectName(QStringLiteral("recentAddresses"));
    m_recent->setAccessibleName(tr("Recent"));
    m_recent->setRootIsDecorated(false);
    m_recent->setHeaderLabels({ tr("Client"), tr("Address") });
    m_recent->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_recent->setMinimumHeight(fontMetrics().height() * 10);
    layout->addWidget(m_recent);
    m_useRecent = new QPushButton(tr("Use"), page);
    m_useRecent->setObjectName(QStringLiteral("useRecentAddressButton"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_useRecent);
    layout->addLayout(buttons);
    connect(m_useRecent, &QPushButton::clicked, this, &AddressPopover::useRecent);
    connect(m_recent, &QTreeWidget::itemDoubleClicked, this, &AddressPopover::useRecent);
    return page;
}

void AddressPopover::splitName(qint64 tag, const QString &title, const QString &name, QString *first, QString *last)
{
    first->clear();
    last->clear();
    QString rest = name;
    const QString titled = title + QLatin1Char(' ');
    if ((tag == 2 || tag == 3 || tag == 4) && rest.startsWith(titled))
        rest = rest.mid(titled.size());
    if (tag == 3) {
        *first = rest;
    } else if (tag == 1 || tag == 4) {
        const qsizetype blank = rest.indexOf(QLatin1Char(' '));
        *first = blank < 0 ? QString() : rest.left(blank);
        *last = blank < 0 ? rest : rest.mid(blank + 1);
    } else {
        *last = rest;
    }
}

void AddressPopover::prepare()
{
    AddressFields f;
    if (const Record *doc = m_app.currentInvoice()) {
        f.address = doc->text(Invoice::address);
        f.clientNumber = doc->text(Invoice::clientNumber);
        f.emailAddress = doc->text(Invoice::emailAddress);
        f.customerVATID = doc->text(Invoice::customerVATID);
        f.customerTitle = doc->text(Invoice::customerTitle);
        splitName(m_app.prefs().integer(P::clientNamePatternTag), f.customerTitle, doc->text(Invoice::customerName),
            &f.firstName, &f.lastName);
        f.buyer = Contacts::buyerOf(*doc);
    }
    setFields(f);
    loadRememberedFile();
    fillRecent();
    const bool recent = m_app.prefs().integer(P::alwaysShowRecentAddresses) != 0 && m_recent->topLevelItemCount() > 0;
    m_tabs->setCurrentIndex(recent ? RecentTab : AddressTab);
    (recent ? static_cast<QWidget *>(m_recent) : m_address)->setFocus();
}

void AddressPopover::loadRememberedFile()
{
    const QString path = m_app.prefs().string(P::contactsVCardFile);
    if (path.isEmpty() || path == m_contacts->path())
        return;
    const Result<QList<Contact>> contacts = Contacts::readVCardFile(path);
    if (!contacts)
        m_contacts->showProblem(path, contacts.error().text);
    else
        m_contacts->showContacts(path, contacts.value());
}

void AddressPopover::fillRecent()
{
    m_recent->clear();
    for (Record *entry : m_app.documents().addressBook()) {
        const QString address = entry->text(Address::address);
        auto *row = new QTreeWidgetItem(m_recent,
            { entry->text(Address::customerName), QString(address).replace(QLatin1Char('\n'), QStringLiteral(", ")) });
        row->setToolTip(1, address);
        row->setData(0, Qt::UserRole, QVariant::fromValue(static_cast<void *>(entry)));
    }
    m_recent->resizeColumnToContents(0);
    if (m_recent->topLevelItemCount() > 0)
        m_recent->setCurrentItem(m_recent->topLevelItem(0));
    m_useRecent->setEnabled(m_recent->topLevelItemCount() > 0);
}

void AddressPopover::setFields(const AddressFields &f)
{
    m_address->setPlainText(f.address);
    m_clientNumber->setText(f.clientNumber);
    m_email->setText(f.emailAddress);
    m_vatID->setText(f.customerVATID);
    m_title->setText(f.customerTitle);
    m_first->setText(f.firstName);
    m_last->setText(f.lastName);
    for (std::size_t i = 0; i < m_buyer.size(); ++i)
        m_buyer[i]->setText(f.buyer[i]);
}

AddressFields AddressPopover::fields() const
{
    AddressFields f { m_address->toPlainText(), m_clientNumber->text(), m_email->text(), m_vatID->text(),
        m_title->text(), m_first->text(), m_last->text(), {} };
    for (std::size_t i = 0; i < m_buyer.size(); ++i)
        f.buyer[i] = m_buyer[i]->text();
    return f;
}

QWidget *AddressPopover::createEInvoicePage()
{
    // What an e-invoice needs beyond the address text, in its parts.
    auto *page = new QWidget(this);
    auto *form = new QFormLayout(page);
    const QString labels[] = { tr("Company or name:"), tr("Street:"), tr("Postcode:"), tr("City:"),
        tr("Country code:"), tr("Buyer reference:"), tr("E-invoice address:") };
    for (std::size_t i = 0; i < m_buyer.size(); ++i) {
        m_buyer[i] = new QLineEdit(page);
        m_buyer[i]->setObjectName(QStringLiteral("popover_") + Buyer::kKeys[i]);
        form->addRow(labels[i], m_buyer[i]);
    }
    constexpr std::size_t country = 4, reference = 5, electronic = 6;
    m_buyer[country]->setMaxLength(2);
    m_buyer[country]->setPlaceholderText(tr("DE, FR, AT…"));
    m_buyer[reference]->setPlaceholderText(tr("Leitweg-ID of a public authority"));
    m_buyer[electronic]->setPlaceholderText(tr("e-mail or scheme:identifier"));
    auto *use = new QPushButton(tr("Use Address"), page);
    connect(use, &QPushButton::clicked, this, &AddressPopover::useAddress);
    form->addRow(QString(), use);
    return page;
}

void AddressPopover::alert(const QString &message)
{
    runHidden([this, message] { m_app.ui().alert(Tr::tr("Error!"), message, { Tr::tr("OK") }); });
}

void AddressPopover::chooseFile()
{
    QString path;
    runHidden([this, &path] {
        Interaction::FileRequest request;
        request.title = tr("Choose vCard File");
        request.extensions = { QStringLiteral("vcf"), QStringLiteral("vcard") };
        path = m_app.ui().openFile(request);
    });
    if (path.isEmpty())
        return;
    const Result<QList<Contact>> contacts = Contacts::readVCardFile(path);
    if (!contacts) {
        alert(contacts.error().text);
        return;
    }
    m_app.prefs().setString(P::contactsVCardFile, path);
    m_contacts->showContacts(path, contacts.value());
}

void AddressPopover::useContact()
{
    const Contact *contact = m_contacts->currentContact();
    if (!contact)
        return;
    AddressFields f = fields();
    QString message;
    if (!Contacts::fieldsFromContact(m_app.prefs(), *contact, &f, &message)) {
        alert(message);
        return;
    }
    setFields(f);
    m_tabs->setCurrentIndex(AddressTab);
    m_address->setFocus();
}

void AddressPopover::useRecent()
{
    const QTreeWidgetItem *row = m_recent->currentItem();
    if (!row)
        return;
    const auto *entry = static_cast<const Record *>(row->data(0, Qt::UserRole).value<void *>());
    AddressFields f { entry->text(Address::address), entry->text(Address::clientNumber),
        entry->text(Address::emailAddress), entry->text(Address::customerVATID), entry->text(Address::customerTitle),
        {}, {}, {} };
    splitName(m_app.prefs().integer(P::clientNamePatternTag), f.customerTitle, entry->text(Address::customerName),
        &f.firstName, &f.lastName);
    f.buyer = Contacts::buyerOf(*entry);
    setFields(f);
    m_tabs->setCurrentIndex(AddressTab);
    m_address->setFocus();
}

void AddressPopover::useAddress()
{
    Record *doc = m_app.currentInvoice();
    if (!doc) {
        hide();
        return;
    }
    // One address: the block typed or pasted fills the e-invoice parts, the
    // parts filled in compose the block.
    m_app.documents().useAddress(*doc, fields());
    hide();
    Q_EMIT addressUsed();
}

} // namespace tabo
