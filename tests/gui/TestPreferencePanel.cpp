#include "gui/preferences/DesignPane.h"
#include "gui/widgets/HintLabel.h"
#include "gui/preferences/LogoWell.h"
#include "gui/windows/PdfPane.h"
#include "gui/widgets/PlainTextField.h"
#include "gui/preferences/PreferencePanel.h"
#include "gui/preferences/PrefsBinder.h"
#include "CommandSupport.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/DesignPreview.h"
#include "domain/Record.h"
#include "editing/SyntaxColorizer.h"
#include "prefs/Preferences.h"
#include "render/PdfEngine.h"
#include "store/Store.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest>

using namespace tabo;
using namespace Qt::StringLiterals;
using P = Preferences;

namespace {

constexpr int RenderTimeout = 60000;

struct Fixture : test::ControllerFixture
{
    std::unique_ptr<QVPreferencePanel> panel;

    Fixture()
    {
        prefs.setBool(P::isTabo2TemplateLoadingDone, true);
        prefs.setInteger(P::languageDefaults, 1);
        prefs.installLanguageDefaults();
        app.store();
        app.designs().loadTemplates();
        panel = std::make_unique<QVPreferencePanel>(app, nullptr);
        panel->showPanel();
    }
    template <typename T>
    T *field(const QString &name) const
    {
        T *w = panel->findChild<T *>(name);
        if (!w)
            qWarning() << "no field" << name;
        return w;
    }
    // Typing as a person does, replacing what is there.
    void type(const QString &name, const QString &text) const
    {
        auto *edit = field<QLineEdit>(name);
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Backspace);
        // Key by key, also the letters no key code names ("ü").
        for (const QChar c : text)
            QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
    QString hint(const QString &name) const
    {
        const HintLabel *h = panel->binder()->hintFor(field<QLineEdit>(name));
        return h && h->isVisibleTo(panel.get()) ? h->text() : QString();
    }
};

} // namespace

class TestPreferencePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panesInOrder();
    void companyAndLogo();
    void invoiceRefusals();
    void taxRates();
    void templateTexts();
    void regionAndLanguage();
    void clients();
    void designButtons();
    void livePreview();
    void customPathBothAnswers();
};

void TestPreferencePanel::panesInOrder()
{
    Fixture f;
    QCOMPARE(f.panel->currentPane(), QVPreferencePanel::Company);
    const QStringList labels {u"Company"_s, u"Invoice"_s, u"Taxes"_s, u"Template"_s, u"Design"_s, u"Region"_s,
                              u"Clients"_s, u"Data"_s};
    for (int i = 0; i < QVPreferencePanel::PaneCount; ++i) {
        QAction *action = f.panel->paneAction(QVPreferencePanel::Pane(i));
        QCOMPARE(action->text(), labels.at(i));
        action->trigger();
        QCOMPARE(f.panel->windowTitle(), labels.at(i));
        QVERIFY(f.panel->paneWidget(QVPreferencePanel::Pane(i))->isVisible());
        const QList<QWidget *> shown = f.panel->centralWidget()->findChildren<QWidget *>(
            QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(std::count_if(shown.begin(), shown.end(), [](QWidget *w) { return w->isVisible(); }), 1);
    }
    QCOMPARE(f.panel->paneAction(QVPreferencePanel::Data)->objectName(), u"View9ItemIdentifier"_s);
}

void TestPreferencePanel::companyAndLogo()
{
    Fixture f;
    f.type(u"prefsName"_s, u"Müller & Söhne"_s);
    QCOMPARE(f.prefs.string(P::prefsName), u"Müller & Söhne"_s);
    f.field<PlainTextField>(u"prefsContact"_s)->setPlainText(u"Hauptstr. 1"_s);
    QCOMPARE(f.prefs.string(P::prefsContact), u"Hauptstr. 1"_s);

    // Not an image: refused, and the logo stays as it was.
    LogoWell *logo = f.field<LogoWell>(u"prefsLogo"_s);
    const QString text = f.home.path() + u"/logo.png"_s;
    QFile bad(text);
    QVERIFY(bad.open(QIODevice::WriteOnly));
    bad.write("not a picture");
    bad.close();
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString good = f.home.path() + u"/red.png"_s;
    QVERIFY(image.save(good));
    QVERIFY(logo->setLogoFile(good));
    const QByteArray stored = f.prefs.data(P::prefsLogo);
    QVERIFY(!logo->setLogoFile(text));
    QVERIFY(logo->hint()->text().contains(u"not an image"_s));
    QCOMPARE(f.prefs.data(P::prefsLogo), stored);
    QVERIFY(!logo->thumbnail()->pixmap().isNull());
    logo->removeLogo();
    QVERIFY(!f.prefs.contains(P::prefsLogo));
}

void TestPreferencePanel::invoiceRefusals()
{
    Fixture f;
    f.panel->selectPane(QVPreferencePanel::Invoice);
    const QString pattern = f.prefs.string(P::invPattern);
    f.type(u"invPattern"_s, u"RE-2026"_s);
    QVERIFY(f.hint(u"invPattern"_s).contains(u"%COUNT%"_s));
    QCOMPARE(f.prefs.string(P::invPattern), pattern);
    f.type(u"invPattern"_s, u"R-%COUNT%"_s);
    QCOMPARE(f.prefs.string(P::invPattern), u"R-%COUNT%"_s);
    QCOMPARE(f.hint(u"invPattern"_s), QString());

    f.prefs.setInteger(P::invCount, 5);
    f.panel->binder()->reload();
    f.type(u"invCount"_s, u"-1"_s);
    QVERIFY(!f.hint(u"invCount"_s).isEmpty());
    QCOMPARE(f.prefs.integer(P::invCount), 5);
    // Leaving the refused entry shows the value that stayed.
    Q_EMIT f.field<QLineEdit>(u"invCount"_s)->editingFinished();
    QCOMPARE(f.field<QLineEdit>(u"invCount"_s)->text(), u"5"_s);
    f.type(u"quotDefaultValidity"_s, u"45"_s);
    QCOMPARE(f.prefs.integer(P::quotDefaultValidity), 45);

    f.field<QCheckBox>(u"markInvoiceAsSent"_s)->click();
    QCOMPARE(f.prefs.boolean(P::markInvoiceAsSent), f.field<QCheckBox>(u"markInvoiceAsSent"_s)->isChecked());
    Q_EMIT f.field<QComboBox>(u"itemSortOrder"_s)->activated(3);
    QCOMPARE(f.prefs.integer(P::itemSortOrder), 3);
}

void TestPreferencePanel::taxRates()
{
    Fixture f;
    f.panel->selectPane(QVPreferencePanel::Taxes);
    QCOMPARE(f.field<QLineEdit>(u"tax1Rate"_s)->text(), QLocale().toString(19));
    f.type(u"tax2Rate"_s, u"7.5"_s);
    QCOMPARE(f.prefs.real(P::tax2Rate), 0.075);
    f.type(u"tax2Rate"_s, u"sieben"_s);
    QVERIFY(f.hint(u"tax2Rate"_s).contains(u"number"_s));
    f.type(u"tax2Rate"_s, u"-3"_s);
    QVERIFY(!f.hint(u"tax2Rate"_s).isEmpty());
    QCOMPARE(f.prefs.real(P::tax2Rate), 0.075);
    f.field<QCheckBox>(u"tax3IsCompound"_s)->click();
    QCOMPARE(f.prefs.boolean(P::tax3IsCompound), true);
}

void TestPreferencePanel::templateTexts()
{
    Fixture f;
    f.panel->selectPane(QVPreferencePanel::Template);
    auto *body = f.field<PlainTextField>(u"tempEmailBody"_s);
    body->setPlainText(u"Guten Tag,\n<b>anbei</b>"_s);
    QCOMPARE(f.prefs.string(P::tempEmailBody), u"Guten Tag,\n<b>anbei</b>"_s);
    // A megabyte pasted: stored whole, nothing hangs (Qt would take minutes
    // to lay out one unbroken line wrapped at words).
    const QString big(1 << 20, u'x');
    QApplication::clipboard()->setText(big);
    auto *footer = f.field<PlainTextField>(u"tempInvFooter"_s);
    footer->selectAll();
    footer->paste();
    QCOMPARE(f.prefs.string(P::tempInvFooter).size(), big.size());
    Q_EMIT f.field<QComboBox>(u"tempPaperSize"_s)->activated(0);
    QCOMPARE(f.prefs.integer(P::tempPaperSize), 0);
}

void TestPreferencePanel::regionAndLanguage()
{
    Fixture f;
    f.panel->selectPane(QVPreferencePanel::Region);
    f.type(u"locTotal"_s, u"Summe"_s);
    QCOMPARE(f.prefs.string(P::locTotal), u"Summe"_s);
    f.prefs.setString(P::prefsRegion, u"fr_FR"_s);
    f.type(u"prefsDatePattern"_s, u"%MONTHLONG%"_s);
    const QString month = f.panel->findChild<QLabel *>(u"dateExample"_s)->text();
    QCOMPARE(month, QLocale(u"fr_FR"_s).standaloneMonthName(QDate::currentDate().month()).toLower());

    auto *region = f.field<QComboBox>(u"prefsRegion"_s);
    region->setEditText(u"xx_nowhere"_s);
    Q_EMIT region->lineEdit()->editingFinished();
    QCOMPARE(f.prefs.string(P::prefsRegion), u"fr_FR"_s);

    // Reinstalling the language defaults asks first; declined, nothing changes.
    f.ui.answers = {1};
    QVERIFY(!f.app.installLanguageDefaults(0));
    QCOMPARE(f.prefs.string(P::locTotal), u"Summe"_s);
    QVERIFY(f.ui.lastAlertText().contains(u"replaced"_s));
    QVERIFY(f.app.installLanguageDefaults(0));
    f.panel->binder()->reload();
    QCOMPARE(f.field<QLineEdit>(u"locTotal"_s)->text(), f.prefs.string(P::locTotal));
    QCOMPARE(f.prefs.string(P::prefsRegion), u"en_US"_s);
}

void TestPreferencePanel::clients()
{
    Fixture f;
    f.panel->selectPane(QVPreferencePanel::Clients);
    const qint64 count = f.prefs.integer(P::clientCount);
    f.type(u"clientCount"_s, u"-1"_s);
    QCOMPARE(f.prefs.integer(P::clientCount), count);
    f.type(u"clientCount"_s, u"17"_s);
    QCOMPARE(f.prefs.integer(P::clientCount), 17);
    Q_EMIT f.field<QComboBox>(u"clientNamePatternTag"_s)->activated(4);
    QCOMPARE(f.prefs.integer(P::clientNamePatternTag), 4);
}

void TestPreferencePanel::designButtons()
{
    Fixture f;
    f.panel->selectPane(QVPreferencePanel::Design);
    DesignPane *pane = f.panel->designPane();
    QListWidget *list = pane->list();
    const int before = list->count();
    QCOMPARE(before, 12);

    pane->button("designAdd")->click();
    QCOMPARE(list->count(), before + 1);
    QCOMPARE(pane->selectedDesign()->text(Design::title), u"New Design"_s);
    list->currentItem()->setText(u"Mine"_s);
    QCOMPARE(pane->selectedDesign()->text(Design::title), u"Mine"_s);

    // Typing is saved to the design, and coloured.
    QVPreferencesTextView *css = pane->editor(DesignPane::Stylesheet);
    css->selectAll();
    QTest::keyClicks(css, u"p { color: red; }"_s);
    QCOMPARE(pane->selectedDesign()->text(Design::css), u"p { color: red; }"_s);
    QCOMPARE(pane->colorizer(DesignPane::Stylesheet)->modeAt(4), u"Identifiers"_s);

    pane->button("designDefault")->click();
    QCOMPARE(f.app.designs().currentDesign(), pane->selectedDesign());

    const QString file = f.home.path() + u"/mine.design"_s;
    f.ui.files = {file};
    pane->button("designExport")->click();
    QVERIFY(QFile::exists(file));
    QCOMPARE(f.ui.fileRequests.last().title, u"Export Tabo Design"_s);
    f.ui.files = {file};
    pane->button("designImport")->click();
    QCOMPARE(list->count(), before + 2);
    QCOMPARE(pane->selectedDesign()->text(Design::css), u"p { color: red; }"_s);
    QVERIFY(!pane->selectedDesign()->boolean(Design::isDefault));

    // Delete asks; Cancel keeps it.
    f.ui.answers = {1};
    pane->button("designDelete")->click();
    QCOMPARE(list->count(), before + 2);
    f.ui.answers = {0};
    pane->button("designDelete")->click();
    QCOMPARE(f.ui.lastAlertTitle(), u"Delete Design"_s);
    QCOMPARE(list->count(), before + 1);

    // Closing the window saves and writes the selection.
    list->setCurrentRow(2);
    f.panel->close();
    QCOMPARE(f.prefs.integer(P::selectedDesign), 2);
    QVERIFY(!f.app.store()->hasChanges());
}

void TestPreferencePanel::livePreview()
{
    Fixture f;
    f.panel->selectPane(QVPreferencePanel::Design);
    DesignPane *pane = f.panel->designPane();
    QTRY_VERIFY_WITH_TIMEOUT(pane->livePreview()->pageCount() > 0, RenderTimeout);

    // A broken page keeps the last good preview and says why in one line.
    QVPreferencesTextView *page = pane->editor(DesignPane::Page);
    page->moveCursor(QTextCursor::End);
    QTest::keyClicks(page, u"<!-- never closed"_s);
    QTRY_VERIFY(pane->previewNote()->isVisibleTo(pane));
    QVERIFY(pane->previewNote()->text().contains(u"comment is not closed"_s));
    QVERIFY(pane->livePreview()->pageCount() > 0);
    QTest::keyClicks(page, u" -->"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!pane->previewNote()->isVisibleTo(pane), RenderTimeout);

    QCOMPARE(DesignPreview::problem(u"<p>"_s, u"<tr>"_s, u"b { /* open"_s).left(11), u"Stylesheet,"_s);
    QCOMPARE(DesignPreview::problem(u"<p>%ITEMSLIST%</p><div"_s, u"<tr>"_s, u""_s).left(14), u"Page, line 1: "_s);
    QCOMPARE(DesignPreview::problem(u"<p>a < b</p>"_s, u"<tr>"_s, u"b{}"_s), QString());
}

void TestPreferencePanel::customPathBothAnswers()
{
    Fixture f;
    f.app.addInvoice();
    f.panel->selectPane(QVPreferencePanel::Data);
    auto *custom = f.field<QCheckBox>(u"useCustomPath"_s);
    const QString before = f.app.storeFilePath();

    // Cancelled in the folder panel: the switch goes back off, nothing moves.
    custom->click();
    QCOMPARE(f.ui.alerts.first().title, u"Hint!"_s);
    QCOMPARE(f.ui.fileRequests.last().title, u"Choose Custom Database Path"_s);
    QVERIFY(!custom->isChecked());
    QVERIFY(!f.prefs.boolean(P::useCustomPath));
    QCOMPARE(f.app.storeURL(), before);

    // A folder chosen: the store moves there with its documents.
    const QString folder = f.home.path() + u"/elsewhere"_s;
    QVERIFY(QDir().mkpath(folder));
    f.ui.files = {folder};
    custom->click();
    QVERIFY(custom->isChecked());
    QCOMPARE(f.prefs.string(P::customDatabasePath), folder);
    QCOMPARE(f.app.storeURL(), folder + u"/Tabo.mbdb"_s);
    QCOMPARE(f.app.store()->count(EntityId::Invoice), 1);
    QCOMPARE(f.field<QLineEdit>(u"storePath"_s)->text(), folder + u"/Tabo.mbdb"_s);

    // A folder that vanished: the move fails and both keys stay as they were.
    f.ui.answers.clear();
    custom->click(); // off: back to the data folder
    QCOMPARE(f.app.storeURL(), before);
    f.ui.files = {f.home.path() + u"/gone"_s};
    custom->click();
    QVERIFY(!f.ui.errors.isEmpty());
    QVERIFY(!f.prefs.boolean(P::useCustomPath));
    QCOMPARE(f.app.storeURL(), before);
}

QTEST_MAIN(TestPreferencePanel)
#include "TestPreferencePanel.moc"
