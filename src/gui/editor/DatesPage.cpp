#include "gui/editor/DatesPage.h"

#include "app/AppController.h"
#include "domain/Record.h"
#include "gui/widgets/FieldBinder.h"
#include "gui/widgets/HintLabel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tabo {

DatesPage::DatesPage(AppController &app, QWidget *parent)
    : QWidget(parent)
    , m_app(app)
    , m_binder(new FieldBinder(app, this))
    , m_form(new QFormLayout)
    , m_dueLabel(new QLabel(this))
    , m_due(new QDateEdit(this))
    , m_isDispatched(new QCheckBox(tr("Dispatched on"), this))
    , m_dispatched(new QDateEdit(this))
    , m_status(new QComboBox(this))
    , m_paidAmount(new QLineEdit(this))
{
    auto *date = new QDateEdit(this);
    auto *dispatchNumber = new QLineEdit(this);
    auto *paidHint = new HintLabel(this);
    paidHint->setObjectName(QStringLiteral("paidAmountHint"));
    m_binder->bindDate(date, Invoice::date);
    m_binder->bindDate(m_due, Invoice::due);
    m_binder->bindCheck(m_isDispatched, Invoice::isDispatched);
    m_binder->bindDate(m_dispatched, Invoice::dispatched);
    m_binder->bindText(dispatchNumber, Invoice::dispatchNumber);
    m_binder->bindNumber(m_paidAmount, Invoice::paidAmount, paidHint);
    const int em = fontMetrics().horizontalAdvance(QLatin1Char('M'));
    for (QWidget *w : { static_cast<QWidget *>(date), static_cast<QWidget *>(m_due),
             static_cast<QWidget *>(m_dispatched), static_cast<QWidget *>(m_status) })
        w->setMinimumWidth(11 * em);
    dispatchNumber->setMaximumWidth(18 * em);
    m_paidAmount->setMaximumWidth(11 * em);
    // Their labels change with the document or are check boxes.
    m_paidAmount->setAccessibleName(tr("Paid amount:"));
    m_due->setAccessibleName(tr("Due:"));
    m_dispatched->setAccessibleName(tr("Dispatched on"));

    // In status-code order: the index is the code.
    m_status->setObjectName(QStringLiteral("status"));
    m_status->addItems({ tr("Created"), tr("Sent"), tr("Overdue"), tr("Paid"), tr("Partly paid") });

    auto *dispatchRow = new QHBoxLayout;
    dispatchRow->addWidget(m_dispatched);
    dispatchRow->addStretch(1);
    auto *paidColumn = new QVBoxLayout;
    paidColumn->addWidget(m_paidAmount);
    paidColumn->addWidget(paidHint);

    m_form->addRow(tr("Date:"), date);
    m_form->addRow(m_dueLabel, m_due);
    m_form->addRow(m_isDispatched, dispatchRow);
    m_form->addRow(tr("Dispatch number:"), dispatchNumber);
    m_form->addRow(tr("Status:"), m_status);
    m_paidRow = m_form->rowCount();
    m_form->addRow(tr("Paid amount:"), paidColumn);
    m_form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->addLayout(m_form);
    layout->addStretch(1);

    connect(m_status, &QComboBox::activated, this, &DatesPage::statusChosen);
    connect(m_isDispatched, &QCheckBox::toggled, m_dispatched, &QWidget::setEnabled);
}

void DatesPage::showDocument(Record *document)
{
    m_binder->load(document);
    const bool quote = document && document->integer(Invoice::kind) != 1;
    // A quote has no payment; its due date is how long the offer stands.
    m_dueLabel->setText(quote ? tr("Valid until:") : tr("Due:"));
    m_form->setRowVisible(m_status, !quote);
    m_form->setRowVisible(m_paidRow, !quote);
    const int status = document ? document->integer(Invoice::status) : 0;
    m_status->setEnabled(document != nullptr);
    m_status->setCurrentIndex(qBound(0, status, m_status->count() - 1));
    m_paidAmount->setEnabled(document && status == 4);
    m_dispatched->setEnabled(document && document->boolean(Invoice::isDispatched));
}

void DatesPage::commitPending()
{
    m_binder->commitPending();
}

void DatesPage::statusChosen(int status)
{
    m_app.setDocumentValue(m_binder->document(), Invoice::status, status);
}

} // namespace tabo
