#include "CommandSupport.h"

#include "domain/Record.h"
#include "render/Formatters.h"
#include "render/PageRenderer.h"
#include "render/Placeholders.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <memory>

using namespace tabo;
using namespace Qt::StringLiterals;
using P = Preferences;

namespace {

struct Fixture
{
    test::TempHome home;
    Preferences prefs { home.configFile() };
    Formatters fmt { prefs, QLocale(QLocale::English, QLocale::UnitedStates) };
    PageRenderer renderer { prefs, fmt };
    Record design { nullptr, EntityId::Design, 0 };
    Record invoice { nullptr, EntityId::Invoice, 0 };
    std::vector<std::unique_ptr<Record>> owned;
    QList<Record *> items;

    Fixture()
    {
        prefs.setString(P::prefsCurrency, u"$"_s);
        design.setText(Design::css, u"b{}"_s);
        design.setText(Design::item, u"<tr>%ITEMNUMBER%:%ITEMSTITLE%</tr>"_s);
        invoice.setInt(Invoice::kind, 1);
    }
    QString render(const QString &page, const LetterMode &mode = {})
    {
        design.setText(Design::invoice, page);
        return renderer.invoiceHTMLString(&design, invoice, items, mode);
    }
    Record *addItem(const QString &title)
    {
        owned.push_back(std::make_unique<Record>(nullptr, EntityId::Item, 0));
        owned.back()->setText(Item::title, title);
        items << owned.back().get();
        return items.last();
    }
};

} // namespace

class TestPageRenderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formatters();
    void pageValuesInOrder();
    void dueLabelAndLetterModes();
    void itemRows();
    void brokenDesigns();
    void logo();
    void hostileValuesEnd();
    void fillingMatchesPlainReplace();
    void typedTextAndRegion();
    void columnLabelsInEveryLanguage();
    void taxRowsDiscountAndLegalLines();
};

void TestPageRenderer::formatters()
{
    Fixture f;
    QCOMPARE(f.fmt.stringFromNumber(1234.5), u"$1,234.50"_s);
    QCOMPARE(f.fmt.stringFromNumber(std::nan("")), QString());
    QCOMPARE(f.fmt.stringFromNumber(-HUGE_VAL), QString());
    QCOMPARE(f.fmt.decimalStringFromNumber(0.05f * 100.0f), u"5"_s);
    QCOMPARE(f.fmt.decimalStringFromNumber(7.0000005), u"7"_s);
    QCOMPARE(f.fmt.decimalStringFromNumber(1234.56789), u"1,234.568"_s);
    QCOMPARE(f.fmt.decimalStringFromNumber(-0.0001), u"0"_s);
    QCOMPARE(Formatters::htmlLineBreakStringFromString(u"a\nb\n"_s), u"a<br />b<br />"_s);

    // The sign goes where the locale puts its own; without a sign, the locale's own must not appear.
    f.prefs.setString(P::prefsCurrency, u"€"_s);
    const Formatters german(f.prefs, QLocale(QLocale::German, QLocale::Germany));
    QCOMPARE(german.stringFromNumber(1234.5), u"1.234,50\u00a0€"_s);
    f.prefs.setString(P::prefsCurrency, QString());
    QCOMPARE(f.fmt.stringFromNumber(-5), u"-5.00"_s);
    QCOMPARE(german.stringFromNumber(1234.5), u"1.234,50"_s);

    // Letter codes never touch the digits; without a locale the sign leads.
    f.prefs.setString(P::prefsCurrency, u"EUR"_s);
    const Formatters plain(f.prefs, QLocale::c());
    QCOMPARE(plain.stringFromNumber(297.5), u"297.50 EUR"_s);
    QCOMPARE(f.fmt.stringFromNumber(-297.5), u"-EUR 297.50"_s);
    f.prefs.setString(P::prefsCurrency, u"$"_s);
    QCOMPARE(plain.stringFromNumber(-680), u"-$680.00"_s);
}

void TestPageRenderer::pageValuesInOrder()
{
    Fixture f;
    f.invoice.setNum(Invoice::amount, 99);
    f.invoice.setText(Invoice::conditions, u"pay %TOTAL%"_s);
    f.invoice.setText(Invoice::number, u"RE-1"_s);
    QCOMPARE(f.render(u"%NUMBER%|%CONDITIONS%|%NUMBER%|%PAIDAMOUNT%|%DATE%|%CSS%"_s), u"RE-1|pay $99.00|RE-1|||b{}"_s);
    QCOMPARE(f.renderer.itemsListCalls(), 0);

    f.prefs.setBool(P::tax1Enabled, true);
    f.prefs.setBool(P::tax3Enabled, true);
    f.prefs.setString(P::tax1Title, u"VAT"_s);
    f.prefs.setString(P::tax2Title, u"City"_s);
    f.invoice.setNum(Invoice::tax1Percent, 0.075);
    f.invoice.setNum(Invoice::tax1Amount, 7.5);
    f.invoice.setNum(Invoice::tax2Percent, 0.02);
    f.invoice.setNum(Invoice::tax2Amount, 2);
    f.invoice.setNum(Invoice::tax3Percent, 0.1);
    Record *taxed = f.addItem(u"Taxed"_s);
    taxed->setBool(Item::isTax1Applied, true);
    taxed->setBool(Item::isTax3Applied, true);
    QCOMPARE(f.render(u"%TAX1TITLE% %TAX1RATE% %TAX1%|%TAX2TITLE%%TAX2RATE%%TAX2%|%TAX3RATE% %TAX3%"_s),
        u"VAT 7.50 $7.50||10.00 "_s);
    f.items.removeAll(taxed);

    const QString discount = u"%LOCDISCOUNT%:%DISCOUNTKINDCHAR%%DISCOUNT%"_s;
    QCOMPARE(f.render(discount), u":"_s);
    f.invoice.setBool(Invoice::isDiscountEnabled, true);
    f.invoice.setText(Invoice::discountTitle, u"Off"_s);
    f.invoice.setNum(Invoice::discountAmount, 10);
    f.invoice.setNum(Invoice::discountPercent, 0.05);
    QCOMPARE(f.render(discount), u"Off:-$10.00"_s);
    f.invoice.setInt(Invoice::discountKind, 1);
    f.invoice.setBool(Invoice::hasDiscountSubtitle, true);
    f.invoice.setText(Invoice::discountSubtitle, u"loyal"_s);
    QCOMPARE(f.render(discount), u"Off<br /><small>loyal</small>:%5"_s);

    f.addItem(u"A"_s);
    QCOMPARE(f.render(u"<table>%ITEMSLIST%</table>"_s), u"<table><tr>1:A</tr></table>"_s);
    QCOMPARE(f.renderer.itemsListCalls(), 1);
}

void TestPageRenderer::dueLabelAndLetterModes()
{
    Fixture f;
    const std::pair<P::Key, QString> labels[] = { { P::locDue, u"Due"_s }, { P::locOverdue, u"Overdue"_s },
        { P::locDispatched, u"Sent"_s }, { P::locExpiration, u"Valid"_s }, { P::locQuote, u"Quote"_s } };
    for (const auto &[key, text] : labels)
        f.prefs.setString(key, text);
    f.prefs.setString(P::prefsDatePattern, u"%YEARLONG%-%MONTHSHORT%-%DAY%"_s);
    f.invoice.setDate(Invoice::due, test::utc(2026, 3, 5));
    f.invoice.setDate(Invoice::dispatched, test::utc(2026, 2, 1));
    f.invoice.setText(Invoice::title, u"Invoice"_s);
    LetterMode reminder;
    reminder.isReminderAction = true;
    reminder.reminder = { u"Reminder"_s, u"pay\nnow"_s, {}, {} };
    reminder.slip = { u"Slip"_s, {}, {}, {} };
    LetterMode slip;
    slip.isSlipAction = true;
    slip.slip = reminder.slip;

    const QString page = u"%LETTERTITLE% %LOCDUE% %DUEDATE% %CONDITIONS%"_s;
    QCOMPARE(f.render(page), u"Invoice Due 2026-03-05 "_s);
    QCOMPARE(f.render(page, reminder), u"Reminder Overdue 2026-03-05 pay<br />now"_s);
    QCOMPARE(f.render(page, slip), u"Slip Sent 2026-02-01 "_s);
    reminder.isSlipAction = true; // reminder wins
    QCOMPARE(f.render(page, reminder), u"Reminder Overdue 2026-03-05 pay<br />now"_s);
    f.invoice.setInt(Invoice::kind, 0);
    QCOMPARE(f.render(page, reminder), u"Reminder Valid 2026-03-05 pay<br />now"_s);

    // A row bringing the due label in after its turn gets the quote label.
    f.addItem(u"%LOCDUE%"_s);
    QCOMPARE(f.render(u"%LOCDUE%/%ITEMSLIST%"_s), u"Valid/<tr>1:Quote</tr>"_s);
}

void TestPageRenderer::itemRows()
{
    Fixture f;
    f.design.setText(Design::item,
        u"[%ITEMNUMBER% %ITEMSTITLE% %ITEMSSUBTITLE% %ITEMSSKU% "
        "%IKNOWITSWRONGBUTILIVEINTHEPASTITEMSINGLEGROSSAMOUNT% %ITEMSTAX1TITLE%"
        "%ITEMSTAX1PERCENT%%ITEMSTAX1AMOUNT%|%ITEMSTAX2TITLE% %ITEMSTAX2PERCENT% "
        "%ITEMSTAX2AMOUNT%|%ITEMSTAX3PERCENT%%DISCOUNTKINDCHAR%%CURRENCY%]"_s);
    f.invoice.setText(Invoice::currency, u"USD"_s);
    QCOMPARE(f.renderer.itemsList(&f.design, f.invoice, f.items), QString());

    Record *taxed = f.addItem(u"C"_s);
    taxed->setBool(Item::isTax2Applied, true);
    taxed->setNum(Item::tax2Percent, 0.07);
    taxed->setNum(Item::baseAmount, 100);
    taxed->setNum(Item::tax2Amount, 7);
    taxed->setText(Item::tax2Title, u"GST"_s);
    taxed->setText(Item::sku, u"S1"_s);
    f.addItem(u"A"_s)->setText(Item::subtitle, u"one\ntwo"_s);
    f.addItem(u"B"_s);
    const QString untaxed = u" %IKNOWITSWRONGBUTILIVEINTHEPASTITEMSINGLEGROSSAMOUNT% |  |%USD]"_s;
    QCOMPARE(f.renderer.itemsList(&f.design, f.invoice, f.items),
        u"[1 C   $107.00 |GST 7 |%USD][2 A one<br />two "_s + untaxed + u"[3 B  "_s + untaxed);

    f.prefs.setBool(P::tempUseSKU, true);
    f.prefs.setBool(P::showSingleTaxAmounts, true);
    // The gross price takes the first applied tax only.
    taxed->setBool(Item::isTax1Applied, true);
    taxed->setNum(Item::tax1Percent, 0.5);
    f.items = { taxed };
    QCOMPARE(f.renderer.itemsList(&f.design, f.invoice, f.items), u"[1 C  S1 $150.00 50|GST 7 $7.00|%USD]"_s);
}

void TestPageRenderer::brokenDesigns()
{
    Fixture f;
    QCOMPARE(f.renderer.invoiceHTMLString(nullptr, f.invoice, f.items),
        u"FAIL! YOUR SELECTED DESIGN IS EITHER BROKEN, CORRUPTED, OR DAMAGED! YOU NEED TO FIX THIS!"_s);
    f.design.setNull(Design::css);
    QCOMPARE(f.render(u"%ITEMSLIST%"_s), PageRenderer::failureText());

    f.design.setText(Design::css, u"b{}"_s);
    f.design.setNull(Design::item);
    f.addItem(u"A"_s);
    QCOMPARE(f.render(u"<p>%ITEMSLIST%</p>%COMPANY%"_s), "<p>" + PageRenderer::failureText() + "</p>");
}

void TestPageRenderer::logo()
{
    Fixture f;
    // The hint is for the person at the screen; paper leaves the cell empty.
    LetterMode screen;
    screen.onScreen = true;
    QVERIFY(f.render(u"%LOGO%"_s, screen).startsWith(u"<small><small>Please provide a 'Logo Image' in the Preferences"_s));
    QCOMPARE(f.render(u"[%LOGO%]"_s), u"[]"_s);
    QCOMPARE(PageRenderer::logoPath(), f.home.dataDir() + u"/Logo.png"_s);
    QVERIFY(!QFile::exists(PageRenderer::logoPath()));

    QImage image(4, 3, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bmp;
    QBuffer buffer(&bmp);
    QVERIFY(image.save(&buffer, "BMP"));
    f.prefs.setData(P::prefsLogo, bmp);
    const QString tag = u"<img src=\"file://%1\" alt=\"logo\">"_s.arg(PageRenderer::logoPath());
    QCOMPARE(f.render(u"%LOGO%"_s), tag);
    QFile file(PageRenderer::logoPath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().startsWith("\x89PNG"));
    QCOMPARE(QImage(PageRenderer::logoPath()).size(), QSize(4, 3));

    f.prefs.setData(P::prefsLogo, "no image");
    QCOMPARE(f.render(u"%LOGO%"_s), tag);
    QVERIFY(!QFile::exists(PageRenderer::logoPath()));
}

void TestPageRenderer::hostileValuesEnd()
{
    Fixture f;
    // Each of these would loop for ever if substituted until absent.
    f.invoice.setText(Invoice::conditions, u"%CONDITIONS%!"_s);
    f.invoice.setText(Invoice::number, u"%NUMBER%"_s);
    QCOMPARE(f.render(u"%CONDITIONS%/%NUMBER%/%%TOTAL%%"_s), u"%CONDITIONS%!/%NUMBER%/%%"_s);
    f.addItem(u"%ITEMSTITLE%%ITEMSLIST%"_s);
    QCOMPARE(f.render(u"%ITEMSLIST%"_s), u"<tr>1:%ITEMSTITLE%%ITEMSLIST%</tr>"_s);

    // Joins that form the placeholder anew are replaced again.
    QCOMPARE(f.render(u"%TO%TO%TOTAL%TAL%TAL%"_s), QString());

    const QString huge = u"%CONDITIONS%"_s.repeated(100000);
    f.invoice.setText(Invoice::conditions, huge);
    QCOMPARE(f.render(u"%CONDITIONS%%CONDITIONS%"_s).size(), 2 * huge.size());
}

void TestPageRenderer::fillingMatchesPlainReplace()
{
    // The filler keeps an index of its placeholders; it must agree with the
    // plain replace-until-absent loop on texts full of joins and overlaps.
    QRandomGenerator random(7);
    const auto randomText = [&](int maxLength) {
        QString text;
        for (int n = random.bounded(maxLength); n > 0; --n)
            text += u"%%AB1x"_s.at(random.bounded(6));
        return text;
    };
    const QStringList names { u"%A%"_s, u"%AB%"_s, u"%B%"_s, u"%1%"_s };
    for (int round = 0; round < 2000; ++round) {
        QString plain = randomText(40);
        Placeholders filler(plain);
        for (int step = 0; step < 4; ++step) {
            const QString &name = names.at(random.bounded(names.size()));
            const QString value = randomText(8);
            for (int pass = 0; pass < 32 && plain.contains(name); ++pass) {
                plain.replace(name, value);
                if (value.contains(name))
                    break;
            }
            filler.replace(name, value);
            QCOMPARE(filler.text(), plain);
            for (const QString &other : names)
                QCOMPARE(filler.contains(other), plain.contains(other));
        }
    }
}

void TestPageRenderer::columnLabelsInEveryLanguage()
{
    Fixture f;
    for (qint64 language = 0; language < 4; ++language) {
        f.prefs.setInteger(P::languageDefaults, language);
        QVERIFY(f.prefs.installLanguageDefaults());
        const QString net = f.prefs.string(P::locNet);
        const QString gross = f.prefs.string(P::locAmount);
        QVERIFY2(!net.isEmpty() && !gross.isEmpty() && net != gross, qPrintable(net));
        QVERIFY(!f.prefs.string(P::locVATID).isEmpty());
        f.prefs.setBool(P::showItemSubAmount, true);
        QCOMPARE(f.render(u"%LOCLINEAMOUNT%|%LOCAMOUNT%|%LOCVATID%"_s),
                 net % u'|' % gross % u'|' % f.prefs.string(P::locVATID));
        f.prefs.setBool(P::showItemSubAmount, false);
        QCOMPARE(f.render(u"%LOCLINEAMOUNT%"_s), gross);
    }
}

void TestPageRenderer::taxRowsDiscountAndLegalLines()
{
    Fixture f;
    const QString totals = u"[%TAX1TITLE%|%TAX1%|%TAX1RATE%][%TAX2TITLE%|%TAX2%|%TAX2RATE%][%DISCOUNTPERCENT%|%DISCOUNTAMOUNT%]"_s;
    f.prefs.setBool(P::tax1Enabled, true);
    f.prefs.setBool(P::tax2Enabled, true);
    f.prefs.setString(P::tax1Title, u"VAT"_s);
    f.prefs.setString(P::tax2Title, u"Reduced"_s);
    f.invoice.setNum(Invoice::tax1Percent, 0.19);
    f.invoice.setNum(Invoice::tax2Percent, 0.07);
    f.invoice.setNum(Invoice::subAmount, 200);
    f.invoice.setNum(Invoice::tax1Amount, 38);
    Record *line = f.addItem(u"Work"_s);
    line->setBool(Item::isTax1Applied, true);
    // Tax 2 carries no line and no shipping: no row, not "0.00".
    QCOMPARE(f.render(totals), u"[VAT|$38.00|19.00][||][|]"_s);
    f.invoice.setBool(Invoice::isShippingEnabled, true);
    f.invoice.setBool(Invoice::isShippingTax2Enabled, true);
    QVERIFY(f.render(totals).contains(u"[Reduced||7.00]"_s));
    // A percentage discount shows what it took off, too (here before taxes).
    f.prefs.setBool(P::beforeTaxesBool, true);
    f.invoice.setBool(Invoice::isDiscountEnabled, true);
    f.invoice.setInt(Invoice::discountKind, 1);
    f.invoice.setNum(Invoice::discountPercent, 0.02);
    QVERIFY2(f.render(totals).endsWith(u"[2|$4.00]"_s), qPrintable(f.render(totals)));

    // The law's sentences in the documents' language: tax 2 becomes a reverse
    // charge, tax 1 an exemption.
    f.invoice.setBool(Invoice::isShippingEnabled, false);
    line->setBool(Item::isTax2Applied, true);
    f.invoice.setText(Invoice::customerVATID, u"ATU12345678"_s);
    const char *const sentences[] = {"Reverse charge", "Steuerschuldnerschaft des Leistungsempfängers",
                                     "Autoliquidation", "Inversión del sujeto pasivo"};
    for (qint64 language = 0; language < 4; ++language) {
        f.prefs.setInteger(P::languageDefaults, language);
        QVERIFY(f.prefs.installLanguageDefaults());
        f.prefs.setString(P::tax2Category, u"AE"_s);
        f.prefs.setString(P::tax1Category, u"E"_s);
        f.prefs.setString(P::tax1ExemptionReason, u"§ 4 Nr. 14 UStG"_s);
        f.prefs.setString(P::prefsVATID, u"DE123456789"_s);
        const QString note = f.render(u"%TAXNOTE%"_s);
        QVERIFY2(note.contains(QString::fromUtf8(sentences[language])), qPrintable(note));
        QVERIFY(note.contains(u"§ 4 Nr. 14 UStG"_s));
        QVERIFY(note.contains(f.prefs.string(P::locVATID) + u": DE123456789"_s));
        QVERIFY(note.contains(u": ATU12345678"_s));
        // A design that shows the client's VAT ID itself is not told twice;
        // one without a place for the note gets it under its conditions.
        QVERIFY(!f.render(u"%CLIENTVATID% %TAXNOTE%"_s).contains(u": ATU12345678"_s));
        f.invoice.setText(Invoice::conditions, u"Pay soon."_s);
        const QString conditions = f.render(u"%CONDITIONS%"_s);
        QVERIFY(conditions.startsWith(u"Pay soon.<br />"_s) && conditions.contains(QString::fromUtf8(sentences[language])));
    }
    // Quotes owe no tax yet.
    f.invoice.setInt(Invoice::kind, 0);
    QCOMPARE(f.render(u"%TAXNOTE%"_s), QString());
}

QTEST_GUILESS_MAIN(TestPageRenderer)
#include "TestPageRenderer.moc"

void TestPageRenderer::typedTextAndRegion()
{
    Fixture f;
    // Plain text prints as typed; the texts people format stay markup.
    f.prefs.setString(P::prefsName, u"Müller & Söhne <GmbH>"_s);
    f.invoice.setText(Invoice::address, u"Firma A<B & C\nHauptstr. 1"_s);
    f.invoice.setText(Invoice::subject, u"Projekt <Alpha> & Beta"_s);
    f.invoice.setText(Invoice::footer, u"<b>Bank</b>"_s);
    Record *item = f.addItem(u"Rohr <DN 50>"_s);
    item->setText(Item::unit, u"m<sup>2</sup>"_s);
    f.design.setText(Design::item, u"%ITEMSTITLE%/%ITEMSUNIT%"_s);
    QCOMPARE(f.render(u"%COMPANY%|%CLIENTADDRESS%|%SUBJECT%|%FOOTER%|%ITEMSLIST%"_s),
             u"Müller &amp; Söhne &lt;GmbH&gt;|Firma A&lt;B &amp; C<br />Hauptstr. 1|Projekt &lt;Alpha&gt; &amp; Beta|"
             u"<b>Bank</b>|Rohr &lt;DN 50&gt;/m&lt;sup&gt;2&lt;/sup&gt;"_s);

    // Amounts follow the documents' region, not the desktop's locale.
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const Formatters regional(f.prefs);
    f.prefs.setString(P::prefsCurrency, u"€"_s);
    f.prefs.setString(P::prefsRegion, u"fr_FR"_s);
    QCOMPARE(regional.stringFromNumber(406.89), u"406,89\u00a0€"_s);
    QCOMPARE(regional.decimalStringFromNumber(1.5), u"1,5"_s);
    f.prefs.setString(P::prefsRegion, u"de_CH"_s);
    QCOMPARE(regional.decimalStringFromNumber(1234.5), u"1’234.5"_s);
}
