#include "domain/Contacts.h"

#include "base/Clock.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "domain/RecordOwner.h"
#include "domain/UniqueId.h"
#include "prefs/Preferences.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QStringDecoder>

#include <unicode/unistr.h>

#include <QCoreApplication>
#include <algorithm>
#include <climits>
#include <optional>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Contacts)
};
} // namespace

namespace tabo {

QString Contact::displayName() const
{
    const QString name = QString(firstName + QLatin1Char(' ') + lastName).trimmed();
    if (!name.isEmpty())
        return name;
    return organization.isEmpty() ? email : organization;
}

const std::array<QString, Buyer::kCount> Buyer::kKeys{
    QStringLiteral("company"),     QStringLiteral("street"),         QStringLiteral("postcode"),
    QStringLiteral("city"),        QStringLiteral("countryCode"),    QStringLiteral("buyerReference"),
    QStringLiteral("electronicAddress")};

namespace {
constexpr QString Buyer::*kBuyerParts[Buyer::kCount] = {&Buyer::company,     &Buyer::street,
                                                       &Buyer::postcode,    &Buyer::city,
                                                       &Buyer::countryCode, &Buyer::buyerReference,
                                                       &Buyer::electronicAddress};
} // namespace

QString &Buyer::operator[](std::size_t i)
{
    return this->*kBuyerParts[i];
}

const QString &Buyer::operator[](std::size_t i) const
{
    return this->*kBuyerParts[i];
}

bool Buyer::hasNoAddress() const
{
    return std::all_of(std::begin(kBuyerParts), std::begin(kBuyerParts) + 5,
                       [this](QString Buyer::*part) { return (this->*part).trimmed().isEmpty(); });
}

bool Buyer::isEmpty() const
{
    return std::all_of(std::begin(kBuyerParts), std::end(kBuyerParts),
                       [this](QString Buyer::*part) { return (this->*part).isEmpty(); });
}

namespace Contacts {

namespace {

// Files bigger than this are not address books; reading them would only eat memory.
constexpr qint64 kMaxFileSize = 256 * 1024 * 1024;

// Physical lines (CRLF, LF or a lone CR) joined into logical ones: folded
// continuations (leading blank or tab) and quoted-printable soft breaks.
QList<QByteArray> logicalLines(const QByteArray &data)
{
    QList<QByteArray> lines;
    bool quotedPrintable = false; // the current logical line
    bool softBreak = false;
    const char *p = data.constData();
    const char *const end = p + data.size();
    while (p < end) {
        const char *eol = p;
        while (eol < end && *eol != '\n' && *eol != '\r')
            ++eol;
        QByteArray line = QByteArray::fromRawData(p, eol - p);
        p = eol;
        if (p < end && *p == '\r')
            ++p;
        if (p < end && *p == '\n')
            ++p;

        if (softBreak) {
            lines.last().append(line);
        } else if (line.startsWith(' ') || line.startsWith('\t')) {
            if (lines.isEmpty())
                continue;
            line = line.mid(1);
            lines.last().append(line);
        } else if (line.isEmpty()) {
            quotedPrintable = false;
            continue;
        } else {
            lines.append(QByteArray(line.constData(), line.size()));
            const qsizetype colon = line.indexOf(':');
            quotedPrintable = colon > 0 && line.left(colon).toUpper().contains("QUOTED-PRINTABLE");
        }
        softBreak = quotedPrintable && line.endsWith('=');
        if (softBreak)
            lines.last().chop(1);
    }
    return lines;
}

// Lower ranks are preferred; a property without a preference still beats none.
constexpr int kUnpreferred = INT_MAX - 1;

struct Property
{
    QByteArray name; // upper case, group removed
    QByteArray value;
    int prefRank = kUnpreferred;
    bool quotedPrintable = false;
    QByteArray charset;
};

QByteArray unquoted(QByteArray s)
{
    s = s.trimmed();
    if (s.size() >= 2 && s.startsWith('"') && s.endsWith('"'))
        s = s.mid(1, s.size() - 2);
    return s;
}

void applyParameter(const QByteArray &param, Property *prop)
{
    const qsizetype eq = param.indexOf('=');
    const QByteArray key = (eq < 0 ? QByteArray() : param.left(eq)).trimmed().toUpper();
    const QByteArray value = unquoted(eq < 0 ? param : param.mid(eq + 1));
    if (key == "PREF") {
        bool ok = false;
        const int rank = value.toInt(&ok);
        if (ok && rank > 0)
            prop->prefRank = std::min(prop->prefRank, rank);
    } else if (key == "CHARSET") {
        prop->charset = value;
    } else if ((key.isEmpty() || key == "ENCODING") && value.toUpper() == "QUOTED-PRINTABLE") {
        prop->quotedPrintable = true;
    } else if (key.isEmpty() || key == "TYPE") {
        // TYPE=pref, TYPE=WORK,PREF, TYPE="work,pref" and the bare PREF of 2.1.
        for (const QByteArray &type : value.split(',')) {
            if (unquoted(type).toUpper() == "PREF")
                prop->prefRank = std::min(prop->prefRank, 1);
        }
    }
}

// "group.NAME;param=value;param:value"; false when the line has no value.
bool parseProperty(const QByteArray &line, Property *prop)
{
    const qsizetype n = line.size();
    qsizetype i = 0;
    while (i < n && line[i] != ';' && line[i] != ':')
        ++i;
    if (i == n)
        return false;
    const QByteArray name = line.left(i).trimmed().toUpper();
    prop->name = name.mid(name.lastIndexOf('.') + 1);
    if (line[i] == ';') {
        bool quoted = false;
        qsizetype start = ++i;
        for (; i < n; ++i) {
            const char c = line[i];
            if (c == '"') {
                quoted = !quoted;
            } else if (!quoted && (c == ';' || c == ':')) {
                if (i > start)
                    applyParameter(line.mid(start, i - start), prop);
                start = i + 1;
                if (c == ':')
                    break;
            }
        }
        if (i == n)
            return false;
    }
    prop->value = line.mid(i + 1);
    return true;
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

QByteArray decodeQuotedPrintable(const QByteArray &in)
{
    QByteArray out;
    out.reserve(in.size());
    for (qsizetype i = 0; i < in.size(); ++i) {
        const int high = in[i] == '=' && i + 2 < in.size() ? hexDigit(in[i + 1]) : -1;
        const int low = high < 0 ? -1 : hexDigit(in[i + 2]);
        if (low < 0) {
            out.append(in[i]);
        } else {
            out.append(char(high * 16 + low));
            i += 2;
        }
    }
    return out;
}

QString decodeText(const QByteArray &bytes, const QByteArray &charset)
{
    if (!charset.isEmpty() && charset.toUpper() != "UTF-8") {
        const icu::UnicodeString s(bytes.constData(), int32_t(bytes.size()), charset.constData());
        if (!s.isBogus())
            return QString(reinterpret_cast<const QChar *>(s.getBuffer()), s.length());
    }
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8.decode(bytes);
    if (!utf8.hasError())
        return text;
    // Older exports write the Windows code page without saying so.
    const icu::UnicodeString s(bytes.constData(), int32_t(bytes.size()), "windows-1252");
    return QString(reinterpret_cast<const QChar *>(s.getBuffer()), s.length());
}

// The components of a structured value, split at unescaped semicolons, with
// the backslash escapes resolved.
QStringList components(const QString &value)
{
    QStringList parts;
    QString current;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar c = value[i];
        if (c == QLatin1Char('\\') && i + 1 < value.size()) {
            const QChar next = value[++i];
            current += (next == QLatin1Char('n') || next == QLatin1Char('N')) ? QChar(QLatin1Char('\n')) : next;
        } else if (c == QLatin1Char(';')) {
            parts.append(current.trimmed());
            current.clear();
        } else {
            current += c;
        }
    }
    parts.append(current.trimmed());
    return parts;
}

QString component(const QStringList &parts, int index)
{
    return index < parts.size() ? parts[index] : QString();
}

// One card being read.
struct CardBuilder
{
    Contact contact;
    QString formattedName;
    int addressRank = INT_MAX;
    int emailRank = INT_MAX;

    void add(const Property &prop)
    {
        const bool wanted = prop.name == "N" || prop.name == "FN" || prop.name == "ORG" || prop.name == "ADR"
            || prop.name == "EMAIL";
        if (!wanted)
            return;
        const QByteArray raw = prop.quotedPrintable ? decodeQuotedPrintable(prop.value) : prop.value;
        QString text = decodeText(raw, prop.charset);
        if (prop.quotedPrintable)
            text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        const QStringList parts = components(text);
        if (prop.name == "N") {
            contact.lastName = component(parts, 0);
            contact.firstName = component(parts, 1);
        } else if (prop.name == "FN") {
            formattedName = parts.join(QLatin1Char(';'));
        } else if (prop.name == "ORG") {
            contact.organization = component(parts, 0);
        } else if (prop.name == "ADR" && prop.prefRank < addressRank) {
            addressRank = prop.prefRank;
            const QString extended = component(parts, 1);
            contact.street = component(parts, 2);
            if (!extended.isEmpty())
                contact.street = contact.street.isEmpty() ? extended : contact.street + QLatin1Char('\n') + extended;
            contact.city = component(parts, 3);
            contact.state = component(parts, 4);
            contact.zip = component(parts, 5);
            contact.country = component(parts, 6);
        } else if (prop.name == "EMAIL" && prop.prefRank < emailRank) {
            emailRank = prop.prefRank;
            contact.email = parts.join(QLatin1Char(';'));
        }
    }

    // The contact, or false when the card holds nothing to address.
    bool finish(Contact *out)
    {
        // Companies often repeat their name as FN; that is no person's name.
        if (contact.firstName.isEmpty() && contact.lastName.isEmpty() && formattedName != contact.organization) {
            const qsizetype blank = formattedName.lastIndexOf(QLatin1Char(' '));
            contact.firstName = blank < 0 ? QString() : formattedName.left(blank).trimmed();
            contact.lastName = formattedName.mid(blank + 1);
        }
        const Contact &c = contact;
        for (const QString *field : {&c.firstName, &c.lastName, &c.organization, &c.street, &c.city, &c.zip,
                                     &c.state, &c.country, &c.email}) {
            if (!field->isEmpty()) {
                *out = contact;
                return true;
            }
        }
        return false;
    }
};

QByteArray withoutByteOrderMark(const QByteArray &data)
{
    if (data.startsWith("\xEF\xBB\xBF"))
        return data.mid(3);
    if (data.startsWith("\xFF\xFE") || data.startsWith("\xFE\xFF")) {
        QStringDecoder utf16(QStringDecoder::Utf16);
        return QString(utf16.decode(data)).toUtf8();
    }
    return data;
}

bool isVCardMarker(const Property &prop, const char *name)
{
    return prop.name == name && prop.value.trimmed().toUpper() == "VCARD";
}

Result<QList<Contact>> parse(const QByteArray &data, const QString &fileName)
{
    QList<Contact> contacts;
    bool sawCard = false;
    std::optional<CardBuilder> card;
    const auto finishCard = [&] {
        Contact contact;
        if (card && card->finish(&contact))
            contacts.append(contact);
        card.reset();
    };

    for (const QByteArray &line : logicalLines(withoutByteOrderMark(data))) {
        Property prop;
        if (!parseProperty(line, &prop))
            continue;
        if (isVCardMarker(prop, "BEGIN")) {
            // A card without its END ends where the next one begins.
            finishCard();
            card.emplace();
            sawCard = true;
        } else if (isVCardMarker(prop, "END")) {
            finishCard();
        } else if (card) {
            card->add(prop);
        }
    }
    finishCard();

    if (!contacts.isEmpty())
        return contacts;
    if (fileName.isEmpty())
        return Error::file(
            sawCard ? Tr::tr("The vCard data holds no usable contact.") : Tr::tr("The data is not a vCard file."));
    return Error::file(sawCard ? Tr::tr("The vCard file “%1” holds no usable contact.").arg(fileName)
                               : Tr::tr("The file “%1” is not a vCard file.").arg(fileName));
}

} // namespace

Result<QList<Contact>> parseVCards(const QByteArray &data)
{
    return parse(data, QString());
}

Result<QList<Contact>> readVCardFile(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error::file(Tr::tr("The file “%1” could not be read.").arg(name));
    if (file.size() > kMaxFileSize)
        return Error::file(Tr::tr("The file “%1” is too large for a vCard file.").arg(name));
    return parse(file.readAll(), name);
}

QString formatAddress(const QString &pattern, const Contact &contact)
{
    QString result = pattern;
    result.replace(QLatin1String("%FIRSTNAME%"), contact.firstName);
    result.replace(QLatin1String("%LASTNAME%"), contact.lastName);
    result.replace(QLatin1String("%COMPANY%"), contact.organization);
    result.replace(QLatin1String("%STREET%"), contact.street);
    result.replace(QLatin1String("%CITY%"), contact.city);
    result.replace(QLatin1String("%ZIP%"), contact.zip);
    result.replace(QLatin1String("%STATE%"), contact.state);
    result.replace(QLatin1String("%COUNTRY%"), contact.country);
    return result;
}

bool fieldsFromContact(const Preferences &prefs, const Contact &contact, AddressFields *fields, QString *message)
{
    const QString pattern = prefs.string(Preferences::prefsAddressPattern);
    if (pattern.isEmpty()) {
        if (message)
            *message = Tr::tr("You need to provide an address pattern in the Preferences.");
        return false;
    }
    fields->address = formatAddress(pattern, contact);
    fields->emailAddress = contact.email;
    fields->firstName = contact.firstName;
    fields->lastName = contact.lastName;
    const QString person = QString(contact.firstName + QLatin1Char(' ') + contact.lastName).trimmed();
    fields->buyer.company = contact.organization.isEmpty() ? person : contact.organization;
    fields->buyer.street = contact.street;
    fields->buyer.postcode = contact.zip;
    fields->buyer.city = contact.city;
    fields->buyer.countryCode = countryCode(contact.country);
    return true;
}

Buyer buyerOf(const Record &record)
{
    Buyer buyer;
    for (std::size_t i = 0; i < Buyer::kCount; ++i)
        buyer[i] = record.value(Buyer::kKeys[i]).toString();
    return buyer;
}

void setBuyer(Record &record, const Buyer &buyer)
{
    for (std::size_t i = 0; i < Buyer::kCount; ++i)
        record.setValue(Buyer::kKeys[i], buyer[i].trimmed());
}

QString countryCode(const QString &country)
{
    const QString name = country.trimmed();
    if (name.size() == 2 && name.at(0).isLetter() && name.at(1).isLetter())
        return name.toUpper();
    if (name.isEmpty())
        return {};
    // The names of the four languages Tabo writes in, then English.
    for (const char *language : {"de", "fr", "es", "en"}) {
        const QLocale::Language lang = QLocale::codeToLanguage(QString::fromLatin1(language));
        for (int t = 1; t <= int(QLocale::LastTerritory); ++t) {
            const QLocale locale(lang, QLocale::Territory(t));
            if (locale.territory() != QLocale::Territory(t))
                continue;
            if (locale.nativeTerritoryName().compare(name, Qt::CaseInsensitive) == 0
                || QLocale::territoryToString(QLocale::Territory(t)).compare(name, Qt::CaseInsensitive) == 0)
                return QLocale::territoryToCode(QLocale::Territory(t));
        }
    }
    return {};
}

QString customerName(qint64 clientNamePatternTag, const QString &title, const QString &first, const QString &last)
{
    const QLatin1Char blank(' ');
    switch (clientNamePatternTag) {
    case 1:
        return first + blank + last;
    case 2:
        return title + blank + last;
    case 3:
        return title + blank + first;
    case 4:
        return title + blank + first + blank + last;
    default:
        return last;
    }
}

Record *selectAddress(RecordOwner &store, Record &document, const AddressFields &fields, qint64 clientNamePatternTag)
{
    const QString name = customerName(clientNamePatternTag, fields.customerTitle, fields.firstName, fields.lastName);
    document.setText(Invoice::address, fields.address);
    document.setText(Invoice::clientNumber, fields.clientNumber);
    document.setText(Invoice::emailAddress, fields.emailAddress);
    document.setText(Invoice::customerVATID, fields.customerVATID);
    if (!fields.customerTitle.isEmpty())
        document.setText(Invoice::customerTitle, fields.customerTitle);
    document.setText(Invoice::customerName, name);
    setBuyer(document, fields.buyer);

    for (Record *known : store.all(EntityId::Address)) {
        if (known->text(Address::address) == fields.address) {
            // The parts given now complete what was remembered with the text.
            if (!fields.buyer.isEmpty())
                setBuyer(*known, fields.buyer);
            return nullptr;
        }
    }
    Record *entry = store.insert(EntityId::Address);
    entry->setText(Address::uniqueID, newUniqueId());
    entry->setText(Address::address, fields.address);
    entry->setText(Address::emailAddress, fields.emailAddress);
    entry->setText(Address::clientNumber, fields.clientNumber);
    entry->setText(Address::customerVATID, fields.customerVATID);
    entry->setText(Address::customerTitle, fields.customerTitle);
    entry->setText(Address::customerName, name);
    setBuyer(*entry, fields.buyer);
    entry->setDate(Address::date, now());
    return entry;
}

namespace {

// Where the post writes the city before the postcode ("City, ST 12345").
bool cityFirst(const QString &countryCode)
{
    static const QStringList codes{QStringLiteral("US"), QStringLiteral("CA"), QStringLiteral("AU"),
                                   QStringLiteral("GB"), QStringLiteral("IE")};
    return codes.contains(countryCode);
}

} // namespace

QString composeAddress(const Buyer &buyer, const QString &homeCountry)
{
    QStringList lines;
    for (const QString &part : {buyer.company, buyer.street})
        if (!part.trimmed().isEmpty())
            lines << part.trimmed();
    const QString postcode = buyer.postcode.trimmed();
    const QString city = buyer.city.trimmed();
    const QString country = buyer.countryCode.trimmed().toUpper();
    const QString home = homeCountry.trimmed().toUpper();
    const QString place = cityFirst(country.isEmpty() ? home : country)
        ? QString(city + QLatin1Char(' ') + postcode).trimmed()
        : QString(postcode + QLatin1Char(' ') + city).trimmed();
    if (!place.isEmpty())
        lines << place;
    if (!country.isEmpty() && country != home) {
        const QString name = QLocale::territoryToString(QLocale::codeToTerritory(country));
        lines << (name.isEmpty() || name == QLatin1String("AnyTerritory") ? country : name);
    }
    return lines.join(QLatin1Char('\n'));
}

Buyer partsOfAddress(const QString &block, Buyer known)
{
    QStringList lines;
    for (const QString &line : block.split(QLatin1Char('\n')))
        if (!line.trimmed().isEmpty())
            lines << line.trimmed();
    if (lines.isEmpty())
        return known;
    // A last line that names a country ("Deutschland", "France", "USA").
    if (lines.size() > 1) {
        const QString code = countryCode(lines.last());
        if (!code.isEmpty() && !lines.last().contains(QRegularExpression(QStringLiteral("[0-9]")))) {
            known.countryCode = code;
            lines.removeLast();
        }
    }
    // The line with the postcode, from the bottom: "20095 Hamburg",
    // "D-20095 Hamburg", "75008 Paris", "28001 Madrid", "Springfield, IL 62704".
    static const QRegularExpression postcodeFirst(
        QStringLiteral("^(?:[A-Z]{1,2}-)?([0-9]{4,5}|[0-9]{4} ?[A-Z]{2})\\s+(.+)$"));
    static const QRegularExpression postcodeLast(QStringLiteral("^(.+?)\\s+([0-9]{5}(?:-[0-9]{4})?)$"));
    for (qsizetype i = lines.size() - 1; i > 0; --i) {
        QRegularExpressionMatch m = postcodeFirst.match(lines[i]);
        bool found = m.hasMatch();
        if (found) {
            known.postcode = m.captured(1);
            known.city = m.captured(2).trimmed();
        } else if (m = postcodeLast.match(lines[i]); m.hasMatch()) {
            known.postcode = m.captured(2);
            known.city = m.captured(1).trimmed();
            if (known.countryCode.isEmpty() && known.city.contains(QRegularExpression(QStringLiteral(", ?[A-Z]{2}$"))))
                known.countryCode = QStringLiteral("US");
            found = true;
        }
        if (!found)
            continue;
        // The street is the line above; the company the first line.
        known.company = lines.first();
        known.street = i >= 2 ? lines[i - 1] : QString();
        return known;
    }
    known.company = lines.first();
    return known;
}

void completeAddress(AddressFields &fields, const QString &homeCountry)
{
    const bool noParts = fields.buyer.hasNoAddress();
    if (fields.address.trimmed().isEmpty() && !noParts)
        fields.address = composeAddress(fields.buyer, homeCountry);
    else if (noParts && !fields.address.trimmed().isEmpty())
        fields.buyer = partsOfAddress(fields.address, fields.buyer);
}

QString clientOf(const Record &document)
{
    const QString name = document.text(Invoice::customerName).trimmed();
    if (!name.isEmpty())
        return name;
    return document.text(Invoice::address).section(QLatin1Char('\n'), 0, 0).trimmed();
}

} // namespace Contacts

} // namespace tabo
