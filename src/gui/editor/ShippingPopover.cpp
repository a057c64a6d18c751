#include "gui/editor/ShippingPopover.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "domain/Record.h"
#include "gui/widgets/Formats.h"
#include "gui/widgets/HintLabel.h"
#include "prefs/Preferences.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tabo {

namespace {
using P = Preferences;
const P::Key kTaxTitle[] = { P::tax1Title, P::tax2Title, P::tax3Title };
} // namespace

ShippingPopover::ShippingPopover(AppController &app, QWidget *parent)
    : Popover(parent)
    , m_app(app)
    , m_tabs(new QTabWidget(this))
{
    setObjectName(QStringLiteral("shippingPopover"));
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(createShippingPage(), tr("Shipping"));
    m_tabs->addTab(createRememberedPage(), tr("Remembered"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 10, 10);
    layout->addWidget(m_tabs);
}

QWidget *ShippingPopover::createShippingPage()
{
    auto *page = new QWidget(this);
    auto *form = new QFormLayout(page);
    m_enabled = new QCheckBox(tr("Charge shipping on this document"), page);
    m_enabled->setObjectName(QStringLiteral("shippingEnabled"));
    m_title = new QLineEdit(page);
    m_title->setObjectName(QStringLiteral("shippingTitle"));
    m_title->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 20);
    m_hasSubtitle = new QCheckBox(tr("Show a second line:"), page);
    m_hasSubtitle->setObjectName(QStringLiteral("hasShippingSubtitle"));
    m_subtitle = new QLineEdit(page);
    m_subtitle->setObjectName(QStringLiteral("shippingSubtitle"));
    m_subtitle->setAccessibleName(tr("Second line"));
    m_amount = new QLineEdit(page);
    m_amount->setObjectName(QStringLiteral("shippingAmount"));
    m_amount->setAlignment(Qt::AlignRight);
    m_note = new QLineEdit(page);
    m_note->setObjectName(QStringLiteral("shippingNote"));
    form->addRow(m_enabled);
    form->addRow(tr("Title:"), m_title);
    form->addRow(m_hasSubtitle, m_subtitle);
    form->addRow(tr("Amount (net):"), m_amount);
    auto *taxes = new QVBoxLayout;
    for (int k = 0; k < 3; ++k) {
        m_tax[k] = new QCheckBox(page);
        m_tax[k]->setObjectName(QStringLiteral("shippingTax%1").arg(k + 1));
        m_tax[k]->setAccessibleName(tr("Tax %1").arg(k + 1));
        taxes->addWidget(m_tax[k]);
    }
    form->addRow(tr("Taxes:"), taxes);
    form->addRow(tr("Note:"), m_note);
    m_hint = new HintLabel(page);
    form->addRow(m_hint);
    auto *ok = new QPushButton(tr("OK"), page);
    ok->setObjectName(QStringLiteral("shippingOkButton"));
    ok->setDefault(true);
    form->addRow(QString(), ok);
    connect(ok, &QPushButton::clicked, this, &ShippingPopover::confirm);
    connect(m_amount, &QLineEdit::returnPressed, this, &ShippingPopover::confirm);
    connect(m_enabled, &QCheckBox::toggled, this, &ShippingPopover::updateEnabled);
    connect(m_hasSubtitle, &QCheckBox::toggled, this, &ShippingPopover::updateEnabled);
    return page;
}

QWidget *ShippingPopover::createRememberedPage()
{
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    m_remembered = new QTreeWidget(page);
    m_remembered->setObjectName(QStringLiteral("rememberedShipping"));
    m_remembered->setAccessibleName(tr("Remembered"));
    m_remembered->setRootIsDecorated(false);
    m_remembered->setHeaderLabels({ tr("Title"), tr("Amount") });
    m_remembered->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    m_remembered->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_remembered->setMinimumHeight(fontMetrics().height() * 10);
    layout->addWidget(m_remembered);
    m_use = new QPushButton(tr("Use"), page);
    m_use->setObjectName(QStringLiteral("useShippingButton"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_use);
    layout->addLayout(buttons);
    connect(m_use, &QPushButton::clicked, this, &ShippingPopover::useRemembered);
    connect(m_remembered, &QTreeWidget::itemDoubleClicked, this, &ShippingPopover::useRemembered);
    return page;
}

void ShippingPopover::prepare()
{
    for (int k = 0; k < 3; ++k) {
        const QString title = m_app.prefs().string(kTaxTitle[k]);
        m_tax[k]->setText(title.isEmpty() ? tr("Tax %1").arg(k + 1) : title);
    }
    setFields(m_app.items().shippingFields());
    // A tax the person does not charge is offered only while the line has it.
    const P::Key enabled[] = { P::tax1Enabled, P::tax2Enabled, P::tax3Enabled };
    for (int k = 0; k < 3; ++k)
        m_tax[k]->setVisible(m_app.prefs().boolean(enabled[k]) || m_tax[k]->isChecked());
    m_hint->clearMessage();
    fillRemembered();
    const bool remembered = m_app.prefs().integer(P::alwaysShowRecentShipping) != 0
        && m_remembered->topLevelItemCount() > 0;
    m_tabs->setCurrentIndex(remembered ? RememberedTab : ShippingTab);
    (remembered ? static_cast<QWidget *>(m_remembered) : m_title)->setFocus();
}

void ShippingPopover::fillRemembered()
{
    m_remembered->clear();
    const QList<Record *> entries = m_app.items().rememberedShippings();
    const Record *doc = m_app.currentInvoice();
    const QString currency = doc ? doc->text(Invoice::currency) : QString();
    for (Record *entry : std::as_const(entries)) {
        auto *row = new QTreeWidgetItem(m_remembered,
            { entry->text(RecentShipping::title), Formats::money(entry->num(RecentShipping::amount), currency) });
        row->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        row->setData(0, Qt::UserRole, QVariant::fromValue(static_cast<void *>(entry)));
    }
    m_remembered->resizeColumnToContents(1);
    if (m_remembered->topLevelItemCount() > 0)
        m_remembered->setCurrentItem(m_remembered->topLevelItem(0));
    m_use->setEnabled(m_remembered->topLevelItemCount() > 0);
}

void ShippingPopover::setFields(const ShippingFields &f)
{
    m_enabled->setChecked(f.enabled);
    m_title->setText(f.title);
    m_hasSubtitle->setChecked(f.hasSubtitle);
    m_subtitle->setText(f.subtitle);
    m_amount->setText(f.amount);
    m_tax[0]->setChecked(f.tax1);
    m_tax[1]->setChecked(f.tax2);
    m_tax[2]->setChecked(f.tax3);
    m_note->setText(f.note);
    updateEnabled();
}

ShippingFields ShippingPopover::fields() const
{
    ShippingFields f;
    f.enabled = m_enabled->isChecked();
    f.title = m_title->text();
    f.hasSubtitle = m_hasSubtitle->isChecked();
    f.subtitle = m_subtitle->text();
    f.amount = m_amount->text().trimmed();
    f.tax1 = m_tax[0]->isChecked();
    f.tax2 = m_tax[1]->isChecked();
    f.tax3 = m_tax[2]->isChecked();
    f.note = m_note->text();
    return f;
}

void ShippingPopover::updateEnabled()
{
    const bool on = m_enabled->isChecked();
    for (QWidget *w : { static_cast<QWidget *>(m_title), static_cast<QWidget *>(m_hasSubtitle),
             static_cast<QWidget *>(m_amount), static_cast<QWidget *>(m_note) })
        w->setEnabled(on);
    for (QCheckBox *tax : m_tax)
        tax->setEnabled(on);
    m_subtitle->setEnabled(on && m_hasSubtitle->isChecked());
}

void ShippingPopover::confirm()
{
    if (const Error e = m_app.items().closeShippingPopover(fields())) {
        m_hint->showMessage(e.text.isEmpty() ? tr("The shipping could not be changed.") : e.text);
        adjustSize();
        return;
    }
    hide();
}

void ShippingPopover::useRemembered()
{
    const QTreeWidgetItem *row = m_remembered->currentItem();
    if (!row)
        return;
    m_app.items().selectRecentShipping(*static_cast<const Record *>(row->data(0, Qt::UserRole).value<void *>()));
    hide();
}

} // namespace tabo
