#include "payments/CsvStatement.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringDecoder>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(CsvStatement)
};
} // namespace

namespace tabo::payments {

namespace {

// Lines about the account before the heading; no bank writes more.
constexpr int kMaxPreamble = 40;

// The fields in the order the text form names them.
struct Field
{
    const char *name;
    int CsvColumns::*column;
};
constexpr Field kFields[] = {
    { "date", &CsvColumns::date },
    { "amount", &CsvColumns::amount },
    { "credit", &CsvColumns::credit },
    { "debit", &CsvColumns::debit },
    { "currency", &CsvColumns::currency },
    { "payer", &CsvColumns::payer },
    { "iban", &CsvColumns::iban },
    { "text", &CsvColumns::text },
    { "reference", &CsvColumns::reference },
};

// A heading reduced to lower-case letters and digits without accents, so
// that "Betrag (EUR)", "Date opération" and "Fecha Operación" compare simply.
QString folded(const QString &heading)
{
    const QString decomposed = heading.normalized(QString::NormalizationForm_KD).toLower();
    QString out;
    for (const QChar c : decomposed)
        if (c.isLetterOrNumber() && c.unicode() < 128)
            out += c;
    return out;
}

// Headings by field, the better ones first; a heading matches when it begins
// with one ("betrageur" begins with "betrag").
struct Headings
{
    int CsvColumns::*column;
    QStringList starts;
};
const QList<Headings> &knownHeadings()
{
    static const QList<Headings> list = {
        { &CsvColumns::date,
            { QStringLiteral("buchungstag"), QStringLiteral("buchungsdatum"), QStringLiteral("dateoperation"), QStringLiteral("datedoperation"),
                QStringLiteral("datecomptable"), QStringLiteral("fechaoperacion"), QStringLiteral("fechacontable"), QStringLiteral("bookingdate"), QStringLiteral("datum"),
                QStringLiteral("date"), QStringLiteral("fecha"), QStringLiteral("valutadatum"), QStringLiteral("wertstellung"), QStringLiteral("valuta") } },
        { &CsvColumns::credit, { QStringLiteral("haben"), QStringLiteral("gutschrift"), QStringLiteral("credit"), QStringLiteral("abono"), QStringLiteral("ingreso") } },
        { &CsvColumns::debit, { QStringLiteral("soll"), QStringLiteral("belastung"), QStringLiteral("debit"), QStringLiteral("cargo"), QStringLiteral("gasto") } },
        { &CsvColumns::amount, { QStringLiteral("betrag"), QStringLiteral("umsatz"), QStringLiteral("montant"), QStringLiteral("importe"), QStringLiteral("amount") } },
        { &CsvColumns::currency,
            { QStringLiteral("wahrung"), QStringLiteral("waehrung"), QStringLiteral("devise"), QStringLiteral("divisa"), QStringLiteral("moneda"), QStringLiteral("currency") } },
        { &CsvColumns::iban,
            { QStringLiteral("ibanzahlungsbeteiligter"), QStringLiteral("ibanauftraggeber"), QStringLiteral("kontonummeriban"), QStringLiteral("iban"),
                QStringLiteral("cuentaordenante") } },
        { &CsvColumns::payer,
            { QStringLiteral("namezahlungsbeteiligter"), QStringLiteral("auftraggeberbegunstigter"), QStringLiteral("begunstigter"), QStringLiteral("beguenstigter"),
                QStringLiteral("zahlungspflichtige"), QStringLiteral("auftraggeber"), QStringLiteral("zahlungsbeteiligter"), QStringLiteral("tiers"),
                QStringLiteral("emetteur"), QStringLiteral("contrepartie"), QStringLiteral("ordenante"), QStringLiteral("remitente"), QStringLiteral("payer"),
                QStringLiteral("counterparty"), QStringLiteral("name"), QStringLiteral("nom"), QStringLiteral("nombre") } },
        { &CsvColumns::text,
            { QStringLiteral("verwendungszweck"), QStringLiteral("libelle"), QStringLiteral("concepto"), QStringLiteral("remittance"), QStringLiteral("buchungstext"),
                QStringLiteral("detail"), QStringLiteral("observaciones"), QStringLiteral("descripcion"), QStringLiteral("description") } },
        { &CsvColumns::reference,
            { QStringLiteral("bankreferenz"), QStringLiteral("referenzbank"), QStringLiteral("referencebancaire"), QStringLiteral("referencia") } },
    };
    return list;
}

// Splits one record; `pos` moves past it. Quoted fields may hold the
// separator, doubled quotes and line breaks.
QStringList splitRecord(const QString &text, qsizetype &pos, QChar separator)
{
    QStringList fields;
    QString field;
    bool quoted = false;
    while (pos < text.size()) {
        const QChar c = text.at(pos++);
        if (quoted) {
            if (c == u'"') {
                if (pos < text.size() && text.at(pos) == u'"') {
                    field += c;
                    ++pos;
                } else {
                    quoted = false;
                }
            } else {
                field += c;
            }
        } else if (c == u'"') {
            quoted = true;
        } else if (c == separator) {
            fields << field.trimmed();
            field.clear();
        } else if (c == u'\n') {
            break;
        } else if (c != u'\r') {
            field += c;
        }
    }
    fields << field.trimmed();
    return fields;
}

QString decoded(const QByteArray &data)
{
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8(data);
    if (!utf8.hasError())
        return text.startsWith(QChar(0xfeff)) ? text.mid(1) : text;
    // Older exports are in Windows-1252, whose letters are Latin-1's.
    QStringDecoder windows("windows-1252");
    return windows.isValid() ? windows(data) : QString::fromLatin1(data);
}

QChar likelySeparator(const QString &text)
{
    const QString start = text.left(8192);
    QChar best = u';';
    qsizetype most = -1;
    for (const QChar c : { u';', u',', u'\t' }) {
        if (start.count(c) > most) {
            most = start.count(c);
            best = c;
        }
    }
    return best;
}

QDate dayOf(const QString &text)
{
    static const QStringList formats = { QStringLiteral("dd.MM.yyyy"), QStringLiteral("d.M.yyyy"), QStringLiteral("dd.MM.yy"), QStringLiteral("dd/MM/yyyy"),
        QStringLiteral("d/M/yyyy"), QStringLiteral("yyyy-MM-dd"), QStringLiteral("dd-MM-yyyy"), QStringLiteral("dd/MM/yy") };
    for (const QString &f : formats) {
        QDate d = QDate::fromString(text.trimmed(), f);
        if (d.isValid()) {
            if (f.endsWith(u"yy") && !f.endsWith(u"yyyy"))
                d = d.addYears(100); // two digits are this century
            return d;
        }
    }
    return {};
}

// "1.234,56", "-1 234,56 €", "1,234.56", "+50.00": the last '.' or ',' followed
// by one or two digits is the decimal mark; the sign says credit or debit.
std::optional<qint64> signedCents(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("[\\s\\x{00a0}\\x{202f}€$£]|EUR")));
    if (text.isEmpty())
        return std::nullopt;
    bool negative = false;
    if (text.startsWith(u'-') || text.startsWith(u'+')) {
        negative = text.startsWith(u'-');
        text.remove(0, 1);
    } else if (text.endsWith(u'-')) {
        negative = true;
        text.chop(1);
    }
    static const QRegularExpression decimals(QStringLiteral("[.,](\\d{1,2})$"));
    const QRegularExpressionMatch m = decimals.match(text);
    QString whole = m.hasMatch() ? text.left(m.capturedStart()) : text;
    whole.remove(u'.').remove(u',').remove(u'\'');
    const std::optional<qint64> cents = centsOf(whole + (m.hasMatch() ? u"." + m.captured(1) : QString()));
    if (!cents)
        return std::nullopt;
    return negative ? -*cents : *cents;
}

} // namespace

QString CsvColumns::toText() const
{
    QStringList parts;
    for (const Field &f : kFields)
        if (this->*f.column >= 0)
            parts << QStringLiteral("%1=%2").arg(QLatin1String(f.name)).arg(this->*f.column + 1);
    return parts.join(u',');
}

Result<CsvColumns> CsvColumns::fromText(const QString &text, const QStringList &header)
{
    CsvColumns columns;
    for (const QString &part : text.split(u',', Qt::SkipEmptyParts)) {
        const QString name = part.section(u'=', 0, 0).trimmed().toLower();
        const QString value = part.section(u'=', 1).trimmed();
        const Field *field = std::find_if(std::begin(kFields), std::end(kFields),
            [&](const Field &f) { return name == QLatin1String(f.name); });
        if (field == std::end(kFields))
            return Error::input(Tr::tr("“%1” is no column of a statement; the columns are date, amount, credit, "
                                       "debit, currency, payer, iban, text and reference.")
                                    .arg(name));
        bool isNumber = false;
        int index = value.toInt(&isNumber) - 1;
        if (!isNumber)
            index = int(header.indexOf(value));
        if (index < 0 || (!header.isEmpty() && index >= header.size()))
            return Error::input(Tr::tr("The file has no column “%1”.").arg(value));
        columns.*(field->column) = index;
    }
    if (!columns.isUsable())
        return Error::input(Tr::tr("A statement needs at least its date and amount columns (or credit)."));
    return columns;
}

QString CsvTable::layoutKey() const
{
    QStringList keys;
    for (const QString &h : header)
        keys << folded(h);
    return keys.join(u'|');
}

Result<CsvTable> splitCsv(const QByteArray &data)
{
    const QString text = decoded(data);
    CsvTable table;
    table.separator = likelySeparator(text);
    qsizetype pos = 0;
    QList<QStringList> records;
    while (pos < text.size()) {
        QStringList record = splitRecord(text, pos, table.separator);
        if (record.size() > 1 || !record.first().isEmpty())
            records << record;
    }
    // The heading is the first row whose width the next row shares, unless
    // a row further down is recognised as one.
    qsizetype heading = -1;
    for (qsizetype i = 0; i + 1 < records.size() && i < kMaxPreamble; ++i) {
        if (records.at(i).size() < 3)
            continue;
        if (detectColumns(records.at(i)).isUsable()) {
            heading = i;
            break;
        }
        if (heading < 0 && records.at(i).size() == records.at(i + 1).size())
            heading = i;
    }
    if (heading < 0)
        return Error::file(Tr::tr("This is not a bank statement Tabo reads (CAMT.053, CAMT.054, MT940 or CSV): it "
                                  "has no heading of three or more columns."));
    table.header = records.at(heading);
    table.rows = records.mid(heading + 1);
    return table;
}

CsvColumns detectColumns(const QStringList &header)
{
    CsvColumns columns;
    QList<QString> names;
    for (const QString &h : header)
        names << folded(h);
    QSet<int> taken;
    for (const Headings &known : knownHeadings()) {
        for (const QString &start : known.starts) {
            int found = -1;
            for (int i = 0; i < names.size() && found < 0; ++i)
                if (!taken.contains(i) && names.at(i).startsWith(start))
                    found = i;
            if (found >= 0) {
                columns.*(known.column) = found;
                taken.insert(found);
                break;
            }
        }
    }
    // A "Credit" and a "Debit" column together are the amount; one alone
    // is probably the sign (S/H) or a coincidence.
    if (columns.credit >= 0 && columns.debit < 0 && columns.amount >= 0)
        columns.credit = -1;
    return columns;
}

Result<Statement> readCsvStatement(const CsvTable &table, const CsvColumns &columns, QDate today)
{
    Statement statement;
    statement.format = QStringLiteral("CSV");
    const auto cell = [](const QStringList &row, int column) { return column >= 0 ? row.value(column) : QString(); };
    int number = 0;
    QHash<QString, int> madeUp; // the same booking twice in one file stays two
    for (const QStringList &row : table.rows) {
        ++number;
        // Banks end with totals or notes in fewer columns.
        if (row.size() < 2 || cell(row, columns.date).isEmpty())
            continue;
        Credit c;
        c.booked = dayOf(cell(row, columns.date));
        std::optional<qint64> cents;
        if (columns.amount >= 0) {
            cents = signedCents(cell(row, columns.amount));
        } else {
            const QString credit = cell(row, columns.credit);
            cents = credit.isEmpty() ? std::optional<qint64>(0) : signedCents(credit);
            if (cents && *cents == 0 && !cell(row, columns.debit).isEmpty())
                cents = -1; // a debit
        }
        if (!cents)
            return Error::file(Tr::tr("Entry %1 has no amount that can be read: “%2”.")
                                   .arg(number)
                                   .arg(cell(row, columns.amount >= 0 ? columns.amount : columns.credit)));
        if (*cents < 0) {
            ++statement.debitsSkipped;
            continue;
        }
        c.cents = *cents;
        c.currency = columns.currency >= 0 ? cell(row, columns.currency).toUpper() : QStringLiteral("EUR");
        c.payer = cell(row, columns.payer).simplified();
        c.iban = cell(row, columns.iban).remove(u' ').toUpper();
        c.text = cell(row, columns.text).simplified();
        c.reference = cell(row, columns.reference);
        if (c.reference.isEmpty()) {
            c.reference = madeUpReference(c, table.layoutKey());
            if (const int seen = madeUp[c.reference]++)
                c.reference += QLatin1Char('/') + QString::number(seen + 1);
        }
        if (const Error e = checkCredit(c, today, number))
            return e;
        statement.credits << c;
    }
    return statement;
}

} // namespace tabo::payments
