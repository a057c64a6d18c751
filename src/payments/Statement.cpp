#include "payments/Statement.h"

#include "base/XmlTree.h"
#include "payments/CsvStatement.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Statement)
};
} // namespace

namespace tabo::payments {

namespace {

// Statements of a year of a busy account stay far below this; a larger file
// is not read, whatever it claims to be.
constexpr qint64 kMaxBytes = 20 * 1024 * 1024;
constexpr qint64 kMaxCents = 100'000'000'000LL; // a billion in any currency

bool knownCurrency(const QString &code)
{
    static const QRegularExpression iso(QStringLiteral("^[A-Z]{3}$"));
    return iso.match(code).hasMatch();
}

} // namespace

QString madeUpReference(const Credit &c, const QString &context)
{
    const QByteArray key = (context + QLatin1Char('|') + c.booked.toString(Qt::ISODate) + QLatin1Char('|')
        + QString::number(c.cents) + QLatin1Char('|') + c.payer + QLatin1Char('|') + c.text)
                               .toUtf8();
    return QStringLiteral("made-up:")
        + QString::fromLatin1(QCryptographicHash::hash(key, QCryptographicHash::Sha1).toHex());
}

Error checkCredit(const Credit &c, QDate today, int number)
{
    const QString which = Tr::tr("Entry %1").arg(number);
    if (!c.booked.isValid())
        return Error::file(Tr::tr("%1 has no booking date.").arg(which));
    if (c.booked > today)
        return Error::file(
            Tr::tr("%1 is booked on %2, a day still to come.").arg(which, c.booked.toString(Qt::ISODate)));
    if (c.cents <= 0)
        return Error::file(Tr::tr("%1 has no amount above zero.").arg(which));
    if (!knownCurrency(c.currency))
        return Error::file(Tr::tr("%1 is in “%2”, which is no currency code.").arg(which, c.currency));
    return {};
}

namespace {

QString joined(const QList<const xml::Node *> &nodes)
{
    QStringList parts;
    for (const xml::Node *n : nodes)
        if (!n->text.trimmed().isEmpty())
            parts << n->text.simplified();
    return parts.join(QLatin1Char(' '));
}

QDate camtDay(const xml::Node *dateNode)
{
    if (!dateNode)
        return {};
    const QString text = dateNode->value(u"Dt").isEmpty() ? dateNode->value(u"DtTm") : dateNode->value(u"Dt");
    return QDate::fromString(text.left(10), Qt::ISODate);
}

// The payer's name: in older versions Dbtr/Nm, from version 8 Dbtr/Pty/Nm.
QString camtPayer(const xml::Node *parties)
{
    if (!parties)
        return {};
    const QString name = parties->value(u"Dbtr/Nm");
    return name.isEmpty() ? parties->value(u"Dbtr/Pty/Nm") : name;
}

Result<Statement> readCamt(const xml::Tree &tree, QDate today)
{
    static const QRegularExpression kind(QStringLiteral("camt\\.(053|054)\\.001\\.0([2-8])$"));
    const QRegularExpressionMatch m = kind.match(tree.rootNamespace);
    if (!m.hasMatch())
        return Error::file(Tr::tr("This is not a bank statement: its namespace is “%1”, not CAMT.053 or CAMT.054 "
                                  "(versions 001.02 to 001.08).")
                               .arg(tree.rootNamespace));
    Statement statement;
    statement.format = QStringLiteral("CAMT.") + m.captured(1);
    const xml::Node *message
        = tree.root->child(m.captured(1) == QLatin1String("053") ? u"BkToCstmrStmt" : u"BkToCstmrDbtCdtNtfctn");
    if (!message)
        return Error::file(Tr::tr("The statement holds no account report."));
    int number = 0;
    for (const auto &child : message->children) {
        const xml::Node *report = child.get();
        if (report->name != u"Stmt" && report->name != u"Ntfctn")
            continue;
        const QString reportId = report->value(u"Id");
        for (const xml::Node *entry : report->all(u"Ntry")) {
            ++number;
            if (entry->value(u"CdtDbtInd") != QLatin1String("CRDT")
                || entry->value(u"RvslInd") == QLatin1String("true")) {
                ++statement.debitsSkipped;
                continue;
            }
            const xml::Node *amount = entry->child(u"Amt");
            Credit base;
            base.booked = camtDay(entry->child(u"BookgDt"));
            base.currency = amount ? amount->attributes.value(QStringLiteral("Ccy")) : QString();
            const QString entryRef = entry->value(u"AcctSvcrRef");
            QList<const xml::Node *> details;
            for (const xml::Node *d : entry->all(u"NtryDtls"))
                details << d->all(u"TxDtls");
            // A batch booking carries one transaction per payer; each is a credit.
            const bool batch = details.size() > 1;
            if (details.isEmpty())
                details << nullptr;
            for (qsizetype i = 0; i < details.size(); ++i) {
                const xml::Node *tx = details.at(i);
                Credit c = base;
                std::optional<qint64> cents = centsOf(amount ? amount->text : QString());
                if (batch && tx) {
                    const xml::Node *txAmount = tx->child(u"Amt");
                    if (!txAmount)
                        txAmount = tx->at(u"AmtDtls/TxAmt/Amt");
                    cents = centsOf(txAmount ? txAmount->text : QString());
                }
                c.cents = cents.value_or(0);
                if (tx) {
                    c.payer = camtPayer(tx->child(u"RltdPties"));
                    c.iban = tx->value(u"RltdPties/DbtrAcct/Id/IBAN").remove(QLatin1Char(' '));
                    c.text = joined(tx->at(u"RmtInf") ? tx->at(u"RmtInf")->all(u"Ustrd") : QList<const xml::Node *>());
                    if (c.text.isEmpty())
                        c.text = tx->value(u"RmtInf/Strd/CdtrRefInf/Ref");
                }
                const QString txRef = tx ? tx->value(u"Refs/AcctSvcrRef") : QString();
                c.reference = !txRef.isEmpty() ? txRef
                    : !entryRef.isEmpty() ? (batch ? entryRef + QLatin1Char('/') + QString::number(i + 1) : entryRef)
                                          : madeUpReference(c, reportId);
                if (const Error e = checkCredit(c, today, number))
                    return e;
                statement.credits << c;
            }
        }
    }
    return statement;
}

// MT940's ":61:" line: value date YYMMDD, optional booking date MMDD, C/D/RC/RD,
// an optional funds code, the amount with a decimal comma, the transaction
// type, the customer's reference and after "//" the bank's.
const QRegularExpression &mt940Line()
{
    static const QRegularExpression line(
        QStringLiteral("^(\\d{6})(\\d{4})?(RC|RD|C|D)([A-Z])?(\\d+,\\d{0,2})([A-Z][A-Z0-9]{3})([^/]*)(?://(.*))?$"));
    return line;
}

// ":86:" in the German structure: ?20–?29 and ?60–?63 the remittance text,
// ?31 the payer's account, ?32–?33 their name. Unstructured text is taken whole.
void readMt940Details(const QString &details, Credit &c)
{
    if (!details.startsWith(QLatin1Char('?')) && !details.contains(QStringLiteral("?20"))) {
        c.text = details.simplified();
        return;
    }
    QStringList text, name;
    static const QRegularExpression field(QStringLiteral("\\?(\\d{2})([^?]*)"));
    for (auto it = field.globalMatch(details); it.hasNext();) {
        const QRegularExpressionMatch f = it.next();
        const int code = f.captured(1).toInt();
        const QString value = f.captured(2).trimmed();
        if ((code >= 20 && code <= 29) || (code >= 60 && code <= 63))
            text << value;
        else if (code == 31)
            c.iban = QString(value).remove(QLatin1Char(' '));
        else if (code == 32 || code == 33)
            name << value;
    }
    // The remittance text is cut into 27-character fields without regard
    // for words; joined without spaces it reads as written.
    c.text = text.join(QString()).simplified();
    c.payer = name.join(QString()).simplified();
}

Result<Statement> readMt940(const QString &data, QDate today)
{
    Statement statement;
    statement.format = QStringLiteral("MT940");
    // Fields start with ":NN:" or ":NNA:" at the start of a line; others continue the field.
    QList<QPair<QString, QString>> fields;
    static const QRegularExpression tag(QStringLiteral("^:(\\d{2}[A-Z]?):(.*)$"));
    for (const QString &raw : data.split(QRegularExpression(QStringLiteral("\\r?\\n")))) {
        const QString line = raw.trimmed() == QLatin1String("-") ? QString() : raw;
        const QRegularExpressionMatch m = tag.match(line);
        if (m.hasMatch())
            fields.append({ m.captured(1), m.captured(2) });
        else if (!fields.isEmpty() && !line.trimmed().isEmpty())
            fields.last().second
                += (fields.last().first == QLatin1String("86") ? QString() : QStringLiteral(" ")) + line.trimmed();
    }
    if (fields.isEmpty() || fields.first().first != QLatin1String("20"))
        return Error::file(Tr::tr("This is not an MT940 statement: it does not begin with a “:20:” field."));
    QString currency, account;
    int number = 0;
    for (qsizetype i = 0; i < fields.size(); ++i) {
        const auto &[name, value] = fields.at(i);
        if (name == QLatin1String("25"))
            account = value.trimmed();
        else if (name.startsWith(QLatin1String("60")))
            currency = value.mid(7, 3);
        if (name != QLatin1String("61"))
            continue;
        ++number;
        const QRegularExpressionMatch m = mt940Line().match(value.trimmed());
        if (!m.hasMatch())
            return Error::file(
                Tr::tr("Entry %1 of the MT940 statement cannot be read: “%2”.").arg(number).arg(value.left(60)));
        const QString mark = m.captured(3);
        const QString details = i + 1 < fields.size() && fields.at(i + 1).first == QLatin1String("86")
            ? fields.at(i + 1).second
            : QString();
        if (mark != QLatin1String("C") && mark != QLatin1String("RD")) {
            ++statement.debitsSkipped;
            continue;
        }
        Credit c;
        const QDate valueDate = QDate::fromString(QStringLiteral("20") + m.captured(1), QStringLiteral("yyyyMMdd"));
        c.booked = valueDate;
        if (!m.captured(2).isEmpty()) {
            // The booking may fall in the next year after a value date in December.
            QDate booked(valueDate.year(), m.captured(2).left(2).toInt(), m.captured(2).mid(2).toInt());
            if (booked.isValid() && booked < valueDate.addMonths(-6))
                booked = booked.addYears(1);
            if (booked.isValid())
                c.booked = booked;
        }
        c.cents = centsOf(m.captured(5)).value_or(0);
        c.currency = currency;
        readMt940Details(details, c);
        const QString bankRef = m.captured(8).trimmed();
        c.reference = !bankRef.isEmpty() && bankRef != QLatin1String("NONREF") ? bankRef : madeUpReference(c, account);
        if (const Error e = checkCredit(c, today, number))
            return e;
        statement.credits << c;
    }
    return statement;
}

Result<Statement> readCsv(const QByteArray &data, QDate today, const CsvOptions &options)
{
    const Result<CsvTable> table = splitCsv(data);
    if (!table)
        return table.error();
    const QString key = table.value().layoutKey();
    CsvColumns columns = detectColumns(table.value().header);
    const QString named = !options.columns.isEmpty() ? options.columns : options.remembered.value(key);
    if (!named.isEmpty()) {
        const Result<CsvColumns> given = CsvColumns::fromText(named, table.value().header);
        if (!given)
            return given.error();
        columns = given.value();
    }
    if (!columns.isUsable())
        return Error::input(Tr::tr("The columns of this CSV file are not recognised: %1. Say once which column "
                                   "holds the date, the amount, the payer, the IBAN and the text; Tabo remembers "
                                   "it for files laid out like this one.")
                                .arg(table.value().header.join(QStringLiteral(", "))));
    Result<Statement> statement = readCsvStatement(table.value(), columns, today);
    if (statement) {
        statement.value().layoutKey = key;
        statement.value().columns = columns.toText();
    }
    return statement;
}

} // namespace

std::optional<qint64> centsOf(QString text)
{
    text = text.trimmed().remove(QLatin1Char(' '));
    static const QRegularExpression amount(QStringLiteral("^(\\d{1,12})(?:[.,](\\d{0,2}))?$"));
    const QRegularExpressionMatch m = amount.match(text);
    if (!m.hasMatch())
        return std::nullopt;
    const qint64 cents
        = m.captured(1).toLongLong() * 100 + m.captured(2).leftJustified(2, QLatin1Char('0')).toLongLong();
    if (cents > kMaxCents)
        return std::nullopt;
    return cents;
}

Result<Statement> readStatement(const QByteArray &data, QDate today, const CsvOptions &csv)
{
    if (data.size() > kMaxBytes)
        return Error::file(Tr::tr("The file is larger than any bank statement (%1 MB), so it is not read.")
                               .arg(data.size() / (1024 * 1024)));
    const QByteArray start = data.left(200).trimmed();
    if (start.startsWith("<")) {
        const Result<xml::Tree> tree = xml::parse(data, 32,
            { Tr::tr("The file declares a DTD; bank statements never do, so it is not read."),
                Tr::tr("The file nests its elements more deeply than any bank statement does.") });
        if (!tree)
            return tree.error();
        return readCamt(tree.value(), today);
    }
    if (start.startsWith(":20:") || start.contains("\n:20:") || start.startsWith("{1:"))
        return readMt940(QString::fromLatin1(data), today);
    // Text without NUL bytes may be a CSV export; anything else is not read.
    if (!data.left(4096).contains('\0'))
        return readCsv(data, today, csv);
    return Error::file(Tr::tr("This is not a bank statement Tabo reads (CAMT.053, CAMT.054, MT940 or CSV)."));
}

Result<Statement> readStatementFile(const QString &path, QDate today, const CsvOptions &csv)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error::file(
            Tr::tr("The file “%1” could not be read: %2").arg(QFileInfo(path).fileName(), file.errorString()));
    if (file.size() > kMaxBytes)
        return Error::file(Tr::tr("The file is larger than any bank statement (%1 MB), so it is not read.")
                               .arg(file.size() / (1024 * 1024)));
    return readStatement(file.readAll(), today, csv);
}

} // namespace tabo::payments
