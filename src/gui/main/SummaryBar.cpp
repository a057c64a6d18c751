#include "gui/main/SummaryBar.h"

#include "app/AppController.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>

namespace tabo {

SummaryBar::SummaryBar(AppController &app, QWidget *parent)
    : QFrame(parent)
    , m_app(app)
{
    setObjectName(QStringLiteral("summaryBar"));
    setFrameShape(QFrame::NoFrame);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 12, 6);
    layout->setSpacing(6);
    m_invoices = addFigure(tr("Invoices"), QStringLiteral("invoiceCount"));
    m_quotes = addFigure(tr("Quotes"), QStringLiteral("quoteCount"));
    layout->addStretch(1);
    m_total = addFigure(tr("Total"), QStringLiteral("totalAmount"));
    m_paid = addFigure(tr("Paid"), QStringLiteral("paidAmount"));
    m_due = addFigure(tr("Due"), QStringLiteral("dueAmount"));

    connect(&m_app, &AppController::summaryChanged, this, &SummaryBar::refresh);
    refresh();
}

QLabel *SummaryBar::addFigure(const QString &caption, const QString &name)
{
    auto *captionLabel = new QLabel(caption + QLatin1Char(':'), this);
    captionLabel->setForegroundRole(QPalette::PlaceholderText);
    auto *value = new QLabel(this);
    value->setObjectName(name);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont font = value->font();
    font.setBold(true);
    value->setFont(font);
    auto *box = static_cast<QHBoxLayout *>(layout());
    box->addWidget(captionLabel);
    box->addWidget(value);
    box->addSpacing(14);
    return value;
}

void SummaryBar::refresh()
{
    const Summary &s = m_app.summary();
    const QLocale locale;
    m_invoices->setText(locale.toString(s.invoiceCount));
    m_quotes->setText(locale.toString(s.quoteCount));
    m_total->setText(locale.toString(double(s.totalAmount), 'f', 2));
    m_paid->setText(locale.toString(double(s.paidAmount), 'f', 2));
    m_due->setText(locale.toString(double(s.dueAmount), 'f', 2));
}

} // namespace tabo
