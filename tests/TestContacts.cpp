#include "TestSupport.h"

#include "domain/Contacts.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/Store.h"

#include <QFile>
#include <QTest>

using namespace tabo;

class TestContacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parsesVersions();
    void unusableAndHostileInput();
    void addressPattern();
    void customerName_data();
    void customerName();
    void selectAddressRemembersOnce();
    void oneAddressBothWays();
};

namespace {

QString fieldsOf(const Contact &c)
{
    return QStringList{c.firstName, c.lastName, c.organization, c.street, c.city, c.zip, c.state, c.country, c.email}
        .join(QLatin1Char('|'));
}

} // namespace

void TestContacts::parsesVersions()
{
    const QByteArray data =
        // 3.0: folding, escapes, groups, TYPE=pref on the second address and e-mail.
        "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Weber;Anna;;Dr.;\r\nFN:Dr. Anna Weber\r\n"
        "ORG:M\xC3\xBCller\\, S\xC3\xB6hne;Einkauf\r\n"
        "ADR;TYPE=HOME:;;Altweg 1;Bonn;;53111;Germany\r\n"
        "ADR;TYPE=WORK,PREF:;Haus B;Hauptstr. 5\\;\r\n  2. OG;Ber\r\n\tlin;BE;10115;DE\r\n"
        "item1.EMAIL;TYPE=INTERNET:anna@home.example\r\n"
        "item2.EMAIL;type=INTERNET;type=pref:anna@work.example\r\nEND:VCARD\r\n"
        // 4.0: the lowest PREF wins; quoted parameters may hold ; and :.
        "BEGIN:VCARD\nVERSION:4.0\nN:Smith;John;;;\n"
        "ADR;PREF=2;TYPE=\"work,voice\":;;1 Main St;Springfield;IL;62701;USA\n"
        "ADR;PREF=1;LABEL=\"1 Elm St;\\nSpringfield: IL\":;;1 Elm St;Springfield;IL;62702;USA\n"
        "ADR:;;9 Oak Rd;Shelbyville;IL;62565;USA\nEMAIL:john@first.example\n"
        "EMAIL;PREF=3:john@third.example\nEMAIL;PREF=5:john@fifth.example\nEND:VCARD\n"
        // 2.1: quoted-printable with soft break and a declared charset.
        "BEGIN:VCARD\r\nVERSION:2.1\r\nN;CHARSET=ISO-8859-1;ENCODING=QUOTED-PRINTABLE:J=FCrgens;G=FCnter\r\n"
        "ADR;WORK;PREF;QUOTED-PRINTABLE:;;Lange Stra=C3=9Fe 3=0D=0A=\r\nHof;K=C3=B6ln;;50667;\r\nEND:VCARD\r\n"
        // A company repeating its name as FN, a name only in FN, an e-mail alone
        // and a card cut off before its END.
        "BEGIN:VCARD\nFN:Acme Corp\nORG:Acme Corp;Sales\nEND:VCARD\n"
        "BEGIN:VCARD\nFN:Maria de la Cruz\nEND:VCARD\n"
        "BEGIN:VCARD\nEMAIL:only@mail.example\nEND:VCARD\n"
        "BEGIN:VCARD\nN:Solo;;;;\n";
    const QList<Contact> contacts = Contacts::parseVCards(data).value();
    QCOMPARE(contacts.size(), 7);
    QCOMPARE(fieldsOf(contacts[0]),
             QStringLiteral("Anna|Weber|Müller, Söhne|Hauptstr. 5; 2. OG\nHaus B|Berlin|10115|BE|DE|anna@work.example"));
    QCOMPARE(fieldsOf(contacts[1]),
             QStringLiteral("John|Smith||1 Elm St|Springfield|62702|IL|USA|john@third.example"));
    QCOMPARE(fieldsOf(contacts[2]), QStringLiteral("Günter|Jürgens||Lange Straße 3\nHof|Köln|50667|||"));
    QCOMPARE(fieldsOf(contacts[3]), QStringLiteral("||Acme Corp||||||"));
    QCOMPARE(fieldsOf(contacts[4]), QStringLiteral("Maria de la|Cruz|||||||"));
    QCOMPARE(contacts[0].displayName(), QStringLiteral("Anna Weber"));
    QCOMPARE(contacts[3].displayName(), QStringLiteral("Acme Corp"));
    QCOMPARE(contacts[5].displayName(), QStringLiteral("only@mail.example"));
    QCOMPARE(contacts[6].displayName(), QStringLiteral("Solo"));
}

void TestContacts::unusableAndHostileInput()
{
    const auto refusal = [](const Result<QList<Contact>> &read) {
        return read ? QStringLiteral("(read %1)").arg(read.value().size()) : read.error().text;
    };
    QCOMPARE(refusal(Contacts::parseVCards("Name,Email\nAnna,anna@example.org\n")),
             QStringLiteral("The data is not a vCard file."));
    QCOMPARE(refusal(Contacts::parseVCards("BEGIN:VCARD\nN:;;;;\nTEL:123\nEND:VCARD\n")),
             QStringLiteral("The vCard data holds no usable contact."));

    test::TempHome home;
    const QString path = home.path() + QStringLiteral("/x.vcf");
    for (const QByteArray &content : {QByteArray(), QByteArray("BEGIN:VCARD\r\nEND:VCARD\r\n")}) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        QCOMPARE(refusal(Contacts::readVCardFile(path)),
                 content.isEmpty() ? QStringLiteral("The file “x.vcf” is not a vCard file.")
                                   : QStringLiteral("The vCard file “x.vcf” holds no usable contact."));
    }

    QCOMPARE(refusal(Contacts::parseVCards(QByteArray(1 << 20, 'A'))), QStringLiteral("The data is not a vCard file."));
    QCOMPARE(refusal(Contacts::parseVCards(QByteArray("BEGIN:VCARD\n").repeated(200000))),
             QStringLiteral("The vCard data holds no usable contact."));
    // Binary junk, an unbalanced quote, a huge folded value and a dangling soft
    // break around one good card.
    QByteArray junk;
    for (int i = 0; i < 4096; ++i)
        junk.append(char((i * 7919) % 256));
    const QByteArray data = junk + "\nBEGIN:VCARD\nEMAIL;TYPE=\"x:y\n N:broken\nFN:Kim Lee\nNOTE:"
        + QByteArray(1 << 20, 'n') + "\n " + QByteArray(1 << 20, ';') + "\nEND:VCARD\n" + junk
        + "\nBEGIN:VCARD\nADR;QUOTED-PRINTABLE:=";
    const QList<Contact> contacts = Contacts::parseVCards(data).value();
    QCOMPARE(contacts.size(), 1);
    QCOMPARE(contacts[0].lastName, QStringLiteral("Lee"));
}

void TestContacts::addressPattern()
{
    Contact c{QStringLiteral("Anna"), QStringLiteral("Weber"), {}, QStringLiteral("Altweg 1"), QStringLiteral("Bonn"),
              QStringLiteral("53111"), {}, {}, QStringLiteral("anna@example.org")};
    QCOMPARE(Contacts::formatAddress(QStringLiteral("%COMPANY%\n%FIRSTNAME% %LASTNAME%\n%STREET%\n%ZIP% %CITY% "
                                                    "%STATE%\n%COUNTRY%/%LASTNAME%"),
                                     c),
             QStringLiteral("\nAnna Weber\nAltweg 1\n53111 Bonn \n/Weber"));

    test::TempHome home;
    Preferences prefs(home.path() + QStringLiteral("/prefs.conf"));
    AddressFields fields;
    fields.address = QStringLiteral("typed by hand");
    QString message;
    QVERIFY(!Contacts::fieldsFromContact(prefs, c, &fields, &message));
    QCOMPARE(message, QStringLiteral("You need to provide an address pattern in the Preferences."));
    QCOMPARE(fields.address, QStringLiteral("typed by hand"));
    QVERIFY(fields.emailAddress.isEmpty());

    prefs.setString(Preferences::prefsAddressPattern, QStringLiteral("%LASTNAME%, %CITY%"));
    QVERIFY(Contacts::fieldsFromContact(prefs, c, &fields, &message));
    QCOMPARE(QStringList({fields.address, fields.emailAddress, fields.firstName, fields.lastName}),
             QStringList({"Weber, Bonn", c.email, c.firstName, c.lastName}));
}

void TestContacts::customerName_data()
{
    QTest::addColumn<qint64>("tag");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("expected");
    QTest::newRow("0") << qint64(0) << "Anna" << "Weber";
    QTest::newRow("1") << qint64(1) << "Anna" << "Anna Weber";
    QTest::newRow("2") << qint64(2) << "Anna" << "Dr. Weber";
    QTest::newRow("3") << qint64(3) << "Anna" << "Dr. Anna";
    QTest::newRow("4") << qint64(4) << "Anna" << "Dr. Anna Weber";
    QTest::newRow("4 no first") << qint64(4) << "" << "Dr.  Weber";
    QTest::newRow("1 no first") << qint64(1) << "" << " Weber";
    QTest::newRow("other") << qint64(7) << "Anna" << "Weber";
    QTest::newRow("negative") << qint64(-1) << "Anna" << "Weber";
}

void TestContacts::customerName()
{
    QFETCH(qint64, tag);
    QFETCH(QString, first);
    QFETCH(QString, expected);
    QCOMPARE(Contacts::customerName(tag, QStringLiteral("Dr."), first, QStringLiteral("Weber")), expected);
}

void TestContacts::selectAddressRemembersOnce()
{
    test::TempHome home;
    Store store(home.path() + QStringLiteral("/t.mbdb"));
    QVERIFY(!store.open());
    FixedClock clock(test::utc(2026, 3, 5));
    Clock::setInstance(&clock);

    Record *invoice = store.insert(EntityId::Invoice);
    invoice->setText(Invoice::customerTitle, QStringLiteral("Frau"));
    AddressFields fields{QStringLiteral("Anna Weber\nAltweg 1\n53111 Bonn"), QStringLiteral("K1001"),
                         QStringLiteral("anna@example.org"), QStringLiteral("DE123"), QString(),
                         QStringLiteral("Anna"), QStringLiteral("Weber"), {}};
    const auto texts = [](const Record *r, std::initializer_list<int> attrs) {
        QStringList out;
        for (int a : attrs)
            out << r->text(a);
        return out;
    };
    const QStringList expected{fields.address, fields.clientNumber, fields.emailAddress, fields.customerVATID,
                               QStringLiteral("Anna Weber")};

    Record *entry = Contacts::selectAddress(store, *invoice, fields, 1);
    QVERIFY(entry);
    QCOMPARE(texts(invoice, {Invoice::address, Invoice::clientNumber, Invoice::emailAddress, Invoice::customerVATID,
                             Invoice::customerName}),
             expected);
    QCOMPARE(invoice->text(Invoice::customerTitle), QStringLiteral("Frau")); // an empty title field keeps it
    QCOMPARE(texts(entry, {Address::address, Address::clientNumber, Address::emailAddress, Address::customerVATID,
                           Address::customerName}),
             expected);
    QCOMPARE(entry->date(Address::date), clock.now());
    const QString id = entry->text(Address::uniqueID);
    QVERIFY(id.size() == 36 && id == id.toUpper());
    QVERIFY(entry->isNull(Address::misc2) && entry->isNull(Address::misc5));
    QVERIFY(!store.save());

    fields.customerTitle = QStringLiteral("Dr.");
    // The parts an e-invoice needs reach the document and complete the
    // address remembered with the same text.
    fields.buyer = {QStringLiteral("Anna Weber"), QStringLiteral("Altweg 1"), QStringLiteral("53111"),
                    QStringLiteral("Bonn"), Contacts::countryCode(QStringLiteral("Deutschland")), QString(),
                    QStringLiteral(" anna@example.org ")};
    QVERIFY(!Contacts::selectAddress(store, *invoice, fields, 4));
    QCOMPARE(store.count(EntityId::Address), 1);
    QCOMPARE(Contacts::buyerOf(*invoice).countryCode, QStringLiteral("DE"));
    QVERIFY(Contacts::buyerOf(*entry) == Contacts::buyerOf(*invoice));
    QCOMPARE(Contacts::buyerOf(*entry).electronicAddress, QStringLiteral("anna@example.org"));
    for (const auto &[name, code] : {std::pair{"France", "FR"}, {"Österreich", "AT"}, {"at", "AT"}, {"España", "ES"},
                                     {"Atlantis", ""}})
        QCOMPARE(Contacts::countryCode(QString::fromUtf8(name)), QLatin1String(code));
    QCOMPARE(texts(invoice, {Invoice::customerTitle, Invoice::customerName}),
             QStringList({"Dr.", "Dr. Anna Weber"}));

    fields.address += QStringLiteral("\nGermany");
    QVERIFY(Contacts::selectAddress(store, *invoice, fields, 0));
    QCOMPARE(store.count(EntityId::Address), 2);
    Clock::setInstance(nullptr);
}

void TestContacts::oneAddressBothWays()
{
    struct Case
    {
        const char *home, *block, *company, *street, *postcode, *city, *country;
    };
    const Case cases[] = {
        {"DE", "Kunde GmbH\nz. Hd. Frau Weber\nHauptstraße 5\n20095 Hamburg", "Kunde GmbH", "Hauptstraße 5", "20095", "Hamburg", ""},
        {"DE", "Société Durand SARL\n12 rue de la Paix\n75002 Paris\nFrance", "Société Durand SARL", "12 rue de la Paix", "75002", "Paris", "FR"},
        {"ES", "Construcciones García S.L.\nCalle Mayor 10\n28013 Madrid", "Construcciones García S.L.", "Calle Mayor 10", "28013", "Madrid", ""},
        {"US", "Acme Corp.\n742 Evergreen Terrace\nSpringfield, IL 62704", "Acme Corp.", "742 Evergreen Terrace", "62704", "Springfield, IL", "US"},
        {"FR", "Atelier Martin\n3 place Bellecour\n69002 Lyon", "Atelier Martin", "3 place Bellecour", "69002", "Lyon", ""},
    };
    for (const Case &c : cases) {
        const QString block = QString::fromUtf8(c.block);
        const Buyer parts = Contacts::partsOfAddress(block);
        QCOMPARE(parts.company, QString::fromUtf8(c.company));
        QCOMPARE(parts.street, QString::fromUtf8(c.street));
        QCOMPARE(parts.postcode, QLatin1String(c.postcode));
        QCOMPARE(parts.city, QString::fromUtf8(c.city));
        QCOMPARE(parts.countryCode, QLatin1String(c.country));
        // And back: the block as the post reads it (a care-of line is not a part).
        QString expected = block;
        expected.remove(QStringLiteral("z. Hd. Frau Weber\n"));
        QCOMPARE(Contacts::composeAddress(parts, QLatin1String(c.home)), expected);
    }
    // Either side fills the other; neither overwrites what was given.
    AddressFields typed;
    typed.buyer.company = QStringLiteral("Kunde GmbH");
    typed.buyer.street = QStringLiteral("Weg 5");
    typed.buyer.postcode = QStringLiteral("1010");
    typed.buyer.city = QStringLiteral("Wien");
    typed.buyer.countryCode = QStringLiteral("AT");
    Contacts::completeAddress(typed, QStringLiteral("DE"));
    QCOMPARE(typed.address, QStringLiteral("Kunde GmbH\nWeg 5\n1010 Wien\nAustria"));
    AddressFields pasted;
    pasted.address = typed.address;
    pasted.buyer.electronicAddress = QStringLiteral("rechnung@kunde.example");
    Contacts::completeAddress(pasted, QStringLiteral("DE"));
    Buyer expected = typed.buyer;
    expected.electronicAddress = QStringLiteral("rechnung@kunde.example");
    QVERIFY(pasted.buyer == expected);
    AddressFields both = typed;
    both.address = QStringLiteral("Anders\nGeschrieben");
    Contacts::completeAddress(both, QStringLiteral("DE"));
    QCOMPARE(both.address, QStringLiteral("Anders\nGeschrieben"));
    QVERIFY(both.buyer == typed.buyer);
}

QTEST_GUILESS_MAIN(TestContacts)
#include "TestContacts.moc"
