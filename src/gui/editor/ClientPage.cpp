#include "gui/editor/ClientPage.h"

#include "domain/Record.h"
#include "gui/editor/AddressPopover.h"
#include "gui/widgets/FieldBinder.h"
#include "gui/widgets/PlainTextField.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tabo {

ClientPage::ClientPage(AppController &app, QWidget *parent)
    : QWidget(parent)
    , m_binder(new FieldBinder(app, this))
    , m_popover(new AddressPopover(app, this))
    , m_address(new PlainTextField(this))
    , m_subject(new QLineEdit(this))
    , m_addressButton(new QPushButton(tr("Address…"), this))
{
    m_addressButton->setObjectName(QStringLiteral("addressButton"));
    m_addressButton->setToolTip(tr("Take the client from your contacts or the recent addresses"));
    m_address->setVisibleLines(5);
    m_address->setAccessibleName(tr("Address"));
    const auto text = [this](int attr) {
        auto *edit = new QLineEdit(this);
        m_binder->bindText(edit, attr);
        return edit;
    };
    m_binder->bindPlainText(m_address, Invoice::address);
    m_binder->bindText(m_subject, Invoice::subject);

    // One grid, so that the labels of both columns line up down the page.
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    const auto label = [this](const QString &text) {
        auto *l = new QLabel(text, this);
        l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        return l;
    };
    const std::pair<QString, int> client[] = { { tr("Name:"), Invoice::customerName },
        { tr("Salutation:"), Invoice::customerTitle }, { tr("Client number:"), Invoice::clientNumber },
        { tr("VAT ID:"), Invoice::customerVATID }, { tr("E-mail:"), Invoice::emailAddress } };
    int row = 0;
    for (const auto &[caption, attr] : client) {
        grid->addWidget(label(caption), row, 2);
        grid->addWidget(text(attr), row, 3);
        ++row;
    }
    auto *addressLabel = label(tr("Address:"));
    addressLabel->setAlignment(Qt::AlignRight | Qt::AlignTop);
    grid->addWidget(addressLabel, 0, 0);
    grid->addWidget(m_address, 0, 1, row, 1);
    grid->addWidget(m_addressButton, row++, 1, Qt::AlignLeft);
    grid->addWidget(label(tr("Heading:")), row, 0);
    grid->addWidget(text(Invoice::title), row, 1);
    grid->addWidget(label(tr("Number:")), row, 2);
    grid->addWidget(text(Invoice::number), row++, 3);
    grid->addWidget(label(tr("Subject:")), row, 0);
    grid->addWidget(m_subject, row, 1, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->addLayout(grid);
    layout->addStretch(1);

    connect(m_addressButton, &QPushButton::clicked, this, &ClientPage::toggleAddressPopover);
    // The client is settled: the subject is what comes next.
    connect(m_popover, &AddressPopover::addressUsed, this, [this] { m_subject->setFocus(); });
}

void ClientPage::showDocument(Record *document)
{
    m_binder->load(document);
    m_addressButton->setEnabled(document != nullptr);
}

void ClientPage::commitPending()
{
    m_binder->commitPending();
}

void ClientPage::toggleAddressPopover()
{
    if (m_binder->document() || m_popover->isVisible())
        m_popover->toggle(m_addressButton);
}

void ClientPage::focusFirstField()
{
    m_address->setFocus();
}

} // namespace tabo
