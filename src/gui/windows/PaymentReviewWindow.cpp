#include "gui/windows/PaymentReviewWindow.h"

#include "app/AppController.h"
#include "app/Interaction.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "gui/widgets/Accessibility.h"
#include "gui/widgets/Formats.h"
#include "gui/widgets/ScreenFit.h"
#include "payments/Matching.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tabo {

namespace {

using payments::Proposal;

QString confidenceText(Proposal::Confidence c)
{
    switch (c) {
    case Proposal::Confidence::Sure:
        return PaymentReviewWindow::tr("Sure");
    case Proposal::Confidence::Proposed:
        return PaymentReviewWindow::tr("Proposed");
    case Proposal::Confidence::Ambiguous:
        return PaymentReviewWindow::tr("Choose");
    case Proposal::Confidence::Imported:
        return PaymentReviewWindow::tr("Taken in before");
    case Proposal::Confidence::None:
        break;
    }
    return PaymentReviewWindow::tr("No match");
}

QString invoiceText(const Record &invoice)
{
    return QStringLiteral("%1 · %2 · %3")
        .arg(invoice.text(Invoice::number), payments::clientName(invoice),
            Formats::money(double(payments::dueCentsOf(invoice)) / 100.0, invoice.text(Invoice::currency)));
}

} // namespace

PaymentReviewWindow::PaymentReviewWindow(AppController &app, PaymentCommands::Review review, QWidget *parent)
    : QDialog(parent)
    , m_app(app)
    , m_review(std::move(review))
    , m_open(payments::openInvoices(app.documentList().all()))
{
    setObjectName(QStringLiteral("paymentReviewWindow"));
    setWindowTitle(tr("Bank Statement"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_table = new QTableWidget(0, ColumnCount, this);
    m_table->setObjectName(QStringLiteral("paymentTable"));
    m_table->setAccessibleName(tr("Credits on the statement"));
    m_table->setHorizontalHeaderLabels(
        { tr("Take"), tr("Booked"), tr("Amount"), tr("Payer"), tr("Text"), tr("Invoice"), tr("Match"), tr("Why") });
    m_table->verticalHeader()->hide();
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->horizontalHeader()->setSectionResizeMode(Why, QHeaderView::Stretch);
    m_summary = new QLabel(this);
    m_summary->setObjectName(QStringLiteral("paymentSummary"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_apply = buttons->addButton(tr("Apply"), QDialogButtonBox::AcceptRole);
    m_apply->setObjectName(QStringLiteral("paymentApply"));
    connect(buttons, &QDialogButtonBox::accepted, this, &PaymentReviewWindow::apply);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_summary);
    layout->addWidget(buttons);
    fill();
    ScreenFit::resize(this, QSize(1100, 520));
}

void PaymentReviewWindow::fill()
{
    const QList<Proposal> &proposals = m_review.proposals;
    m_table->setRowCount(int(proposals.size()));
    for (int row = 0; row < proposals.size(); ++row) {
        const Proposal &p = proposals.at(row);
        const bool imported = p.confidence == Proposal::Confidence::Imported;
        auto *take = new QTableWidgetItem;
        take->setFlags(imported ? Qt::ItemIsSelectable : Qt::ItemIsUserCheckable | Qt::ItemIsEnabled);
        // Sure matches are taken unless the person says otherwise; the
        // others wait for a look.
        take->setCheckState(p.confidence == Proposal::Confidence::Sure ? Qt::Checked : Qt::Unchecked);
        m_table->setItem(row, Take, take);
        const auto cell = [&](Column column, const QString &text) {
            auto *item = new QTableWidgetItem(text);
            item->setToolTip(text);
            m_table->setItem(row, column, item);
        };
        cell(Booked, QLocale().toString(p.credit.booked, QLocale::ShortFormat));
        cell(Amount, Formats::money(double(p.credit.cents) / 100.0, p.credit.currency));
        cell(Payer, p.credit.payer);
        cell(Text, p.credit.text);
        cell(Confidence, confidenceText(p.confidence));
        cell(Why, p.why);
        auto *choice = new QComboBox(m_table);
        choice->setAccessibleName(tr("Invoice"));
        choice->addItem(tr("None"), QVariant());
        // The proposal and the candidates first, then every other open invoice.
        QList<Record *> offered = p.candidates;
        if (p.invoice && !offered.contains(p.invoice))
            offered.prepend(p.invoice);
        for (Record *r : std::as_const(m_open))
            if (!offered.contains(r))
                offered << r;
        for (Record *r : std::as_const(offered))
            choice->addItem(invoiceText(*r), QVariant::fromValue(static_cast<void *>(r)));
        choice->setCurrentIndex(p.invoice ? 1 : 0);
        choice->setEnabled(!imported);
        connect(choice, &QComboBox::currentIndexChanged, this, [this, take, choice] {
            take->setCheckState(choice->currentIndex() > 0 ? Qt::Checked : Qt::Unchecked);
        });
        m_table->setCellWidget(row, Invoice, choice);
    }
    m_table->resizeColumnsToContents();
    m_table->setColumnWidth(Text, std::min(m_table->columnWidth(Text), 260));
    m_table->setColumnWidth(Invoice, std::min(m_table->columnWidth(Invoice), 280));
    connect(m_table, &QTableWidget::itemChanged, this, &PaymentReviewWindow::updateCount);
    updateCount();
}

QList<Proposal> PaymentReviewWindow::accepted() const
{
    QList<Proposal> out;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        const auto *choice = qobject_cast<QComboBox *>(m_table->cellWidget(row, Invoice));
        if (m_table->item(row, Take)->checkState() != Qt::Checked || !choice || choice->currentIndex() <= 0)
            continue;
        Proposal p = m_review.proposals.at(row);
        p.invoice = static_cast<Record *>(choice->currentData().value<void *>());
        out << p;
    }
    return out;
}

void PaymentReviewWindow::updateCount()
{
    const QList<Proposal> taken = accepted();
    qint64 cents = 0;
    for (const Proposal &p : taken)
        cents += p.credit.cents;
    m_summary->setText(tr("%1 of %2 credits (%3) will be taken in; the rest is skipped.")
                           .arg(taken.size())
                           .arg(m_review.proposals.size())
                           .arg(Formats::money(double(cents) / 100.0,
                               taken.isEmpty() ? QString() : taken.first().credit.currency)));
    m_apply->setEnabled(!taken.isEmpty());
}

void PaymentReviewWindow::apply()
{
    const Result<int> applied = m_app.payments().apply(accepted());
    if (!applied) {
        m_app.ui().presentError(applied.error());
        return;
    }
    accept();
}

PaymentReviewWindow *PaymentReviewWindow::importStatement(AppController &app, QWidget *parent)
{
    const QString path = app.payments().chooseStatement();
    return path.isEmpty() ? nullptr : review(app, path, parent);
}

PaymentReviewWindow *PaymentReviewWindow::review(AppController &app, const QString &path, QWidget *parent)
{
    Result<PaymentCommands::Review> read = app.payments().review(path);
    // A CSV export whose headings are unknown: the person names the columns once.
    const QStringList headings = read ? QStringList() : app.payments().csvHeadings(path);
    if (!read && !headings.isEmpty() && read.error().source == Error::Tabo) {
        const QString columns = askStatementColumns(headings, parent);
        if (columns.isEmpty())
            return nullptr;
        read = app.payments().review(path, columns);
    }
    if (!read) {
        app.ui().alert(tr("The bank statement cannot be read"), read.error().message(), { tr("OK") });
        return nullptr;
    }
    auto *window = new PaymentReviewWindow(app, read.value(), parent);
    window->open();
    return window;
}

QString askStatementColumns(const QStringList &headings, QWidget *parent)
{
    QDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("statementColumnsDialog"));
    dialog.setWindowTitle(PaymentReviewWindow::tr("Columns of the Statement"));
    auto *form = new QFormLayout;
    const QList<std::pair<QString, QString>> fields {
        { QStringLiteral("date"), PaymentReviewWindow::tr("Booking date:") },
        { QStringLiteral("amount"), PaymentReviewWindow::tr("Amount:") },
        { QStringLiteral("payer"), PaymentReviewWindow::tr("Payer:") },
        { QStringLiteral("iban"), PaymentReviewWindow::tr("IBAN:") },
        { QStringLiteral("text"), PaymentReviewWindow::tr("Remittance text:") },
        { QStringLiteral("currency"), PaymentReviewWindow::tr("Currency:") },
    };
    QList<QComboBox *> boxes;
    for (const auto &[name, label] : fields) {
        auto *box = new QComboBox(&dialog);
        box->addItem(PaymentReviewWindow::tr("(none)"));
        box->addItems(headings);
        box->setObjectName(QStringLiteral("column-") + name);
        form->addRow(label, box);
        boxes << box;
    }
    auto *intro = new QLabel(PaymentReviewWindow::tr("Tabo does not know the headings of this file. Say once which "
                                                     "column holds what; files laid out like it are read so from now on."),
        &dialog);
    intro->setWordWrap(true);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    const auto usable = [&] { buttons->button(QDialogButtonBox::Ok)->setEnabled(boxes.at(0)->currentIndex() > 0
                                  && boxes.at(1)->currentIndex() > 0); };
    for (QComboBox *box : std::as_const(boxes))
        QObject::connect(box, &QComboBox::currentIndexChanged, &dialog, usable);
    usable();
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(intro);
    layout->addLayout(form);
    layout->addWidget(buttons);
    Accessibility::labelFields(&dialog);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    QStringList parts;
    for (qsizetype i = 0; i < fields.size(); ++i)
        if (boxes.at(i)->currentIndex() > 0)
            parts << QStringLiteral("%1=%2").arg(fields.at(i).first).arg(boxes.at(i)->currentIndex());
    return parts.join(QLatin1Char(','));
}

} // namespace tabo
