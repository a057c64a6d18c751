#include "gui/editor/TotalsPanel.h"

#include "domain/Record.h"
#include "gui/widgets/Formats.h"
#include "prefs/Preferences.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

namespace tabo {

namespace {
using P = Preferences;
const P::Key kTaxTitle[] = { P::tax1Title, P::tax2Title, P::tax3Title };
const P::Key kTaxEnabled[] = { P::tax1Enabled, P::tax2Enabled, P::tax3Enabled };
const int kTaxPercent[] = { Invoice::tax1Percent, Invoice::tax2Percent, Invoice::tax3Percent };
const int kTaxAmount[] = { Invoice::tax1Amount, Invoice::tax2Amount, Invoice::tax3Amount };
} // namespace

TotalsPanel::TotalsPanel(const Preferences &prefs, QWidget *parent)
    : QWidget(parent)
    , m_prefs(prefs)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(24);
    m_grid->setVerticalSpacing(2);
    m_grid->setColumnStretch(0, 1);
    m_net = addRow(tr("Net"), QStringLiteral("totalNet"));
    for (int k = 0; k < 3; ++k)
        m_tax[k] = addRow(QString(), QStringLiteral("totalTax%1").arg(k + 1));
    m_shipping = addRow(tr("Shipping"), QStringLiteral("totalShipping"));
    m_discount = addRow(tr("Discount"), QStringLiteral("totalDiscount"));
    auto *rule = new QFrame(this);
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    m_grid->addWidget(rule, m_grid->rowCount(), 1, 1, 2);
    m_gross = addRow(tr("Total"), QStringLiteral("totalGross"), true);
}

TotalsPanel::Row TotalsPanel::addRow(const QString &caption, const QString &name, bool strong)
{
    const int row = m_grid->rowCount();
    Row r { new QLabel(caption, this), new QLabel(this) };
    r.value->setObjectName(name);
    r.value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    r.value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    r.caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (strong) {
        QFont bold = r.value->font();
        bold.setBold(true);
        r.value->setFont(bold);
        r.caption->setFont(bold);
    } else {
        r.caption->setForegroundRole(QPalette::PlaceholderText);
    }
    // Wide enough for six-figure totals, so the column does not jump.
    r.value->setMinimumWidth(r.value->fontMetrics().horizontalAdvance(QStringLiteral("000,000.00 EUR")));
    m_grid->addWidget(r.caption, row, 1);
    m_grid->addWidget(r.value, row, 2);
    return r;
}

void TotalsPanel::setRowVisible(const Row &row, bool visible)
{
    row.caption->setVisible(visible);
    row.value->setVisible(visible);
}

void TotalsPanel::showDocument(const Record *doc)
{
    setEnabled(doc != nullptr);
    const QString currency = doc ? doc->text(Invoice::currency) : QString();
    const auto money = [&](double amount) { return Formats::money(amount, currency); };
    m_net.value->setText(doc ? money(doc->num(Invoice::subAmount)) : QString());
    for (int k = 0; k < 3; ++k) {
        const double amount = doc ? doc->num(kTaxAmount[k]) : 0.0;
        // A tax nobody uses would only be a row of zeros.
        setRowVisible(m_tax[k], m_prefs.boolean(kTaxEnabled[k]) || amount != 0.0);
        QString title = m_prefs.string(kTaxTitle[k]);
        if (title.isEmpty())
            title = tr("Tax %1").arg(k + 1);
        if (doc)
            title += QStringLiteral(" (%1)").arg(Formats::percent(doc->num(kTaxPercent[k])));
        m_tax[k].caption->setText(title);
        m_tax[k].value->setText(doc ? money(amount) : QString());
    }
    const bool shipping = doc && doc->boolean(Invoice::isShippingEnabled);
    setRowVisible(m_shipping, shipping);
    m_shipping.value->setText(shipping ? money(doc->num(Invoice::shippingAmount)) : QString());

    const bool discount = doc && doc->boolean(Invoice::isDiscountEnabled);
    setRowVisible(m_discount, discount);
    if (discount) {
        // The discount is shown as entered; its effect is in the total.
        const bool percent = doc->integer(Invoice::discountKind) != 0;
        m_discount.value->setText(QStringLiteral("− ")
            + (percent ? Formats::percent(doc->num(Invoice::discountPercent))
                       : money(doc->num(Invoice::discountAmount))));
    }
    m_gross.value->setText(doc ? money(doc->num(Invoice::amount)) : QString());
}

} // namespace tabo
