#include "gui/editor/DiscountPopover.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "gui/widgets/HintLabel.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace tabo {

DiscountPopover::DiscountPopover(AppController &app, QWidget *parent)
    : Popover(parent)
    , m_app(app)
    , m_enabled(new QCheckBox(tr("Grant a discount on this document"), this))
    , m_byAmount(new QRadioButton(tr("Fixed amount:"), this))
    , m_byPercent(new QRadioButton(tr("Percentage:"), this))
    , m_amount(new QLineEdit(this))
    , m_percent(new QLineEdit(this))
    , m_title(new QLineEdit(this))
    , m_hasSubtitle(new QCheckBox(tr("Show a second line:"), this))
    , m_subtitle(new QLineEdit(this))
    , m_hint(new HintLabel(this))
{
    setObjectName(QStringLiteral("discountPopover"));
    m_enabled->setObjectName(QStringLiteral("discountEnabled"));
    m_byAmount->setObjectName(QStringLiteral("discountByAmount"));
    m_byPercent->setObjectName(QStringLiteral("discountByPercent"));
    m_amount->setObjectName(QStringLiteral("discountAmount"));
    m_percent->setObjectName(QStringLiteral("discountPercent"));
    m_title->setObjectName(QStringLiteral("discountTitle"));
    m_hasSubtitle->setObjectName(QStringLiteral("hasDiscountSubtitle"));
    m_subtitle->setObjectName(QStringLiteral("discountSubtitle"));
    m_subtitle->setAccessibleName(tr("Second line"));
    m_amount->setAccessibleName(tr("Fixed amount:"));
    m_percent->setAccessibleName(tr("Percentage:"));
    m_title->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 20);
    for (QLineEdit *number : { m_amount, m_percent })
        number->setAlignment(Qt::AlignRight);
    auto *kinds = new QButtonGroup(this);
    kinds->addButton(m_byAmount);
    kinds->addButton(m_byPercent);

    auto *percentRow = new QHBoxLayout;
    percentRow->addWidget(m_percent);
    percentRow->addWidget(new QLabel(QStringLiteral("%"), this));
    auto *form = new QFormLayout(this);
    form->setContentsMargins(14, 12, 14, 12);
    form->addRow(m_enabled);
    form->addRow(m_byAmount, m_amount);
    form->addRow(m_byPercent, percentRow);
    form->addRow(tr("Title:"), m_title);
    form->addRow(m_hasSubtitle, m_subtitle);
    form->addRow(m_hint);
    auto *ok = new QPushButton(tr("OK"), this);
    ok->setObjectName(QStringLiteral("discountOkButton"));
    ok->setDefault(true);
    form->addRow(QString(), ok);

    connect(ok, &QPushButton::clicked, this, &DiscountPopover::confirm);
    for (QLineEdit *edit : { m_amount, m_percent, m_title, m_subtitle })
        connect(edit, &QLineEdit::returnPressed, this, &DiscountPopover::confirm);
    for (QAbstractButton *b : { static_cast<QAbstractButton *>(m_enabled), static_cast<QAbstractButton *>(m_byAmount),
             static_cast<QAbstractButton *>(m_byPercent), static_cast<QAbstractButton *>(m_hasSubtitle) })
        connect(b, &QAbstractButton::toggled, this, &DiscountPopover::updateEnabled);
}

void DiscountPopover::prepare()
{
    setFields(m_app.items().discountFields());
    m_hint->clearMessage();
    m_enabled->setFocus();
}

void DiscountPopover::setFields(const DiscountFields &f)
{
    m_enabled->setChecked(f.enabled);
    m_otherKind = f.kind != 0 ? f.kind : 1;
    (f.kind == 0 ? m_byAmount : m_byPercent)->setChecked(true);
    m_amount->setText(f.amount);
    m_percent->setText(f.percent);
    m_title->setText(f.title);
    m_hasSubtitle->setChecked(f.hasSubtitle);
    m_subtitle->setText(f.subtitle);
    updateEnabled();
}

DiscountFields DiscountPopover::fields() const
{
    DiscountFields f;
    f.enabled = m_enabled->isChecked();
    f.kind = m_byAmount->isChecked() ? 0 : m_otherKind;
    f.amount = m_amount->text().trimmed();
    f.percent = m_percent->text().trimmed();
    f.title = m_title->text();
    f.subtitle = m_subtitle->text();
    f.hasSubtitle = m_hasSubtitle->isChecked();
    return f;
}

void DiscountPopover::updateEnabled()
{
    const bool on = m_enabled->isChecked();
    m_byAmount->setEnabled(on);
    m_byPercent->setEnabled(on);
    m_amount->setEnabled(on && m_byAmount->isChecked());
    m_percent->setEnabled(on && m_byPercent->isChecked());
    m_title->setEnabled(on);
    m_hasSubtitle->setEnabled(on);
    m_subtitle->setEnabled(on && m_hasSubtitle->isChecked());
}

void DiscountPopover::confirm()
{
    if (const Error e = m_app.items().closeDiscountPopover(fields())) {
        m_hint->showMessage(e.text.isEmpty() ? tr("The discount could not be changed.") : e.text);
        adjustSize();
        return;
    }
    hide();
}

} // namespace tabo
