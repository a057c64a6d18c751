#include "gui/editor/DocumentHeader.h"

#include "domain/Record.h"
#include "gui/main/DocumentTableModel.h"
#include "gui/widgets/Formats.h"

#include <QGridLayout>
#include <QLabel>

namespace tabo {

DocumentHeader::DocumentHeader(QWidget *parent)
    : QWidget(parent)
    , m_heading(new QLabel(this))
    , m_details(new QLabel(this))
    , m_amount(new QLabel(this))
    , m_status(new QLabel(this))
{
    setObjectName(QStringLiteral("documentHeader"));
    QFont big = m_heading->font();
    big.setPointSizeF(big.pointSizeF() * 1.25);
    big.setBold(true);
    m_heading->setFont(big);
    m_amount->setFont(big);
    m_amount->setObjectName(QStringLiteral("headerAmount"));
    m_details->setForegroundRole(QPalette::PlaceholderText);
    m_status->setForegroundRole(QPalette::PlaceholderText);
    for (QLabel *l : { m_heading, m_details })
        l->setTextFormat(Qt::PlainText);
    m_amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_status->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(16, 10, 16, 6);
    grid->setVerticalSpacing(2);
    grid->addWidget(m_heading, 0, 0);
    grid->addWidget(m_details, 1, 0);
    grid->addWidget(m_amount, 0, 1);
    grid->addWidget(m_status, 1, 1);
    grid->setColumnStretch(0, 1);
}

void DocumentHeader::showDocument(const Record *doc)
{
    if (!doc) {
        for (QLabel *l : { m_heading, m_details, m_amount, m_status })
            l->clear();
        return;
    }
    const QString number = doc->text(Invoice::number);
    QString heading = doc->text(Invoice::title);
    if (heading.isEmpty())
        heading = doc->integer(Invoice::kind) == 1 ? tr("Invoice") : tr("Quote");
    m_heading->setText(number.isEmpty() ? heading : heading + QLatin1Char(' ') + number);

    QStringList details;
    const QString client = doc->text(Invoice::customerName).trimmed();
    details << (client.isEmpty() ? tr("No client yet") : client);
    if (const QString subject = doc->text(Invoice::subject); !subject.isEmpty())
        details << subject;
    m_details->setText(details.join(QStringLiteral("  ·  ")));
    m_amount->setText(Formats::money(doc->num(Invoice::amount), doc->text(Invoice::currency)));
    m_status->setText(DocumentTableModel::statusText(*doc));
}

} // namespace tabo
