#include "WindowFixture.h"

#include "app/Translations.h"

#include "gui/main/MainWindow.h"
#include "gui/preferences/FirstStartAssistant.h"
#include "gui/preferences/PreferencePanel.h"
#include "gui/windows/AccountingExportSheet.h"
#include "gui/windows/CatalogueWindow.h"
#include "gui/windows/DesignChoiceSheet.h"
#include "gui/windows/ExportSheet.h"
#include "gui/windows/HelpWindows.h"
#include "gui/windows/LetterSheet.h"
#include "gui/windows/NotificationSheet.h"
#include "gui/windows/PreviewWindow.h"
#include "gui/windows/PaymentReviewWindow.h"
#include "gui/windows/ReportWindow.h"
#include "gui/windows/ScheduleWindow.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QShortcut>
#include <QTabBar>
#include <QTextEdit>
#include <QtTest>

#include <map>

using namespace tabo;

// Runs on the screens of tests/gui/screens (CTest names them): every window
// and sheet must fit, with its buttons on the screen.
class TestWindowFit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyWindowFitsTheScreen();
    void everyShortcutIsBoundOnce();
    void everyControlHasAName();
};

namespace {

// Two credits for the review window: one sure, one without a match.
PaymentCommands::Review sampleReview()
{
    PaymentCommands::Review review;
    for (const char *text : { "Rechnung RE-2026-0107 vom 1. November, vielen Dank", "Überweisung" }) {
        payments::Proposal p;
        p.credit.booked = QDate(2026, 11, 20);
        p.credit.cents = 23800;
        p.credit.currency = QStringLiteral("EUR");
        p.credit.payer = QStringLiteral("Nordlicht Werbeagentur GmbH & Co. KG");
        p.credit.text = QString::fromUtf8(text);
        p.why = QStringLiteral("Keine offene Rechnung passt.");
        review.proposals << p;
    }
    return review;
}

// Why the window does not fit, or empty.
QString misfit(QWidget *window)
{
    window->show();
    QCoreApplication::processEvents();
    const QSize area = window->screen()->availableGeometry().size();
    const QSize size = window->frameGeometry().size();
    const QSize least = window->minimumSizeHint().expandedTo(window->minimumSize());
    const QString name = QString::fromLatin1(window->metaObject()->className());
    if (size.width() > area.width() || size.height() > area.height())
        return QStringLiteral("%1 opens %2×%3 on %4×%5").arg(name).arg(size.width()).arg(size.height())
            .arg(area.width()).arg(area.height());
    if (least.width() > area.width() || least.height() > area.height())
        return QStringLiteral("%1 needs at least %2×%3 on %4×%5").arg(name).arg(least.width())
            .arg(least.height()).arg(area.width()).arg(area.height());
    return {};
}

} // namespace

// CTest runs one screen in German, whose words are the longest of the
// translations.
void TestWindowFit::initTestCase()
{
    installTranslations(*QCoreApplication::instance(), {QStringLiteral(TABO_TRANSLATIONS_DIR)});
}

void TestWindowFit::everyWindowFitsTheScreen()
{
    test::WindowFixture f;
    f.prefs.setBool(Preferences::isTabo2TemplateLoadingDone, true);
    f.window = std::make_unique<MainWindow>(f.app);
    const QSize screen = f.window->screen()->size();
    QVERIFY2(screen == QSize(1024, 768) || screen == QSize(1280, 800),
             "run through CTest, which names the screen (tests/gui/screens)");

    QStringList misfits;
    const auto check = [&misfits](QWidget *window) {
        if (const QString why = misfit(window); !why.isEmpty())
            misfits << why;
        window->hide();
    };
    check(f.window.get());
    f.window->show();
    QCoreApplication::processEvents();
    // Search and filter stay in sight; the commands may give way.
    for (const char *name : {"searchField", "filterButton"}) {
        auto *widget = f.window->findChild<QWidget *>(QLatin1String(name));
        QVERIFY2(widget && widget->isVisible() && !widget->visibleRegion().isEmpty(), name);
    }
    check(f.window->exportSheet());
    check(f.window->letterSheet());
    check(f.window->designChoiceSheet());
    check(f.window->notificationSheet());
    check(f.window->previewWindow());
    check(f.window->reportWindow());
    check(f.window->catalogueWindow());
    check(f.window->scheduleWindow());
    PaymentReviewWindow review(f.app, sampleReview(), f.window.get());
    check(&review);
    AccountingExportSheet accounting(f.app, f.window.get());
    check(&accounting);
    FirstStartAssistant assistant(f.app);
    check(&assistant);
    ShortcutsDialog shortcuts(f.window->menuBar());
    check(&shortcuts);
    AboutDialog about;
    check(&about);
    UserGuideWindow guide;
    check(&guide);
    // Each pane in turn, in the one window size the panel keeps.
    QVPreferencePanel *panel = f.window->preferencePanel();
    panel->showPanel();
    const QSize first = panel->size();
    for (int pane = 0; pane < QVPreferencePanel::PaneCount; ++pane) {
        panel->selectPane(QVPreferencePanel::Pane(pane));
        QCOMPARE(panel->size(), first);
        if (const QString why = misfit(panel); !why.isEmpty())
            misfits << why + QStringLiteral(" (pane %1)").arg(pane);
    }
    QVERIFY2(misfits.isEmpty(), qPrintable(misfits.join(QStringLiteral("; "))));

    // Esc and Ctrl+W close the preferences.
    for (const QKeyCombination key : {QKeyCombination(Qt::Key_Escape), QKeyCombination(Qt::CTRL | Qt::Key_W)}) {
        panel->showPanel();
        QApplication::setActiveWindow(panel);
        QTest::keyClick(panel, key.key(), key.keyboardModifiers());
        QTRY_VERIFY(!panel->isVisible());
    }
}

void TestWindowFit::everyShortcutIsBoundOnce()
{
    test::WindowFixture f;
    f.prefs.setBool(Preferences::isTabo2TemplateLoadingDone, true);
    f.window = std::make_unique<MainWindow>(f.app);
    f.window->preferencePanel();
    f.window->reportWindow();
    f.window->catalogueWindow();
    // A key is ambiguous when two actions of one window claim it, or one
    // action claims it twice: Qt then runs neither.
    std::map<std::pair<QWidget *, QString>, QStringList> owners;
    const auto windowOf = [](QObject *object) -> QWidget * {
        for (QObject *o = object; o; o = o->parent())
            if (auto *widget = qobject_cast<QWidget *>(o))
                return widget->window();
        return nullptr;
    };
    for (QAction *action : f.window->findChildren<QAction *>())
        for (const QKeySequence &key : action->shortcuts())
            owners[{windowOf(action), key.toString()}] << action->objectName() + QLatin1Char(' ') + action->text();
    for (QShortcut *shortcut : f.window->findChildren<QShortcut *>())
        if (shortcut->context() != Qt::WidgetShortcut)
            owners[{windowOf(shortcut), shortcut->key().toString()}] << shortcut->objectName();
    QStringList twice;
    for (const auto &[key, names] : owners)
        if (names.size() > 1)
            twice << key.second + QStringLiteral(": ") + names.join(QStringLiteral(", "));
    QVERIFY2(twice.isEmpty(), qPrintable(twice.join(QStringLiteral("; "))));
    QVERIFY(owners.size() > 20);
    // The keys people know from every Linux desktop, whatever the theme adds.
    const auto keysOf = [&f](const char *name) { return f.window->findChild<QAction *>(QLatin1String(name))->shortcuts(); };
    QVERIFY(keysOf("actionRedo").contains(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)));
    QVERIFY(keysOf("preferencesClose").contains(QKeySequence(Qt::CTRL | Qt::Key_W)));
}

// A screen reader names each control by its text, its label (a buddy) or
// its accessible name; a control with none of them is read as "button".
void TestWindowFit::everyControlHasAName()
{
    test::WindowFixture f;
    f.prefs.setBool(Preferences::isTabo2TemplateLoadingDone, true);
    f.window = std::make_unique<MainWindow>(f.app);
    f.window->newInvoiceAction()->trigger();
    QVPreferencePanel *panel = f.window->preferencePanel();
    AccountingExportSheet accounting(f.app, f.window.get());
    FirstStartAssistant assistant(f.app);
    PaymentReviewWindow review(f.app, sampleReview(), f.window.get());
    const QList<QWidget *> windows { f.window.get(), panel, f.window->exportSheet(), f.window->letterSheet(),
        f.window->designChoiceSheet(), f.window->notificationSheet(), f.window->previewWindow(),
        f.window->reportWindow(), f.window->catalogueWindow(), &accounting, &assistant, f.window->scheduleWindow(),
        &review };
    QStringList unnamed;
    int controls = 0;
    for (QWidget *window : windows) {
        for (QWidget *w : window->findChildren<QWidget *>()) {
            const bool control = qobject_cast<QAbstractButton *>(w) || qobject_cast<QLineEdit *>(w)
                || qobject_cast<QComboBox *>(w) || qobject_cast<QAbstractSpinBox *>(w)
                || qobject_cast<QAbstractItemView *>(w) || qobject_cast<QPlainTextEdit *>(w)
                || qobject_cast<QTextEdit *>(w);
            // Parts Qt builds inside its own widgets (a combo box's list, a
            // scroll bar's buttons, a tab bar's scrollers) are named by them.
            if (!control || w->objectName().startsWith(QLatin1String("qt_")) || !w->parentWidget()
                || qobject_cast<QComboBox *>(w->parentWidget()) || qobject_cast<QAbstractSpinBox *>(w->parentWidget())
                || qobject_cast<QTabBar *>(w->parentWidget()) || w->inherits("QComboBoxListView")
                || qobject_cast<QAbstractItemView *>(w->parentWidget()) || w->inherits("QHeaderView")
                || w->inherits("QToolBarExtension") || w->inherits("QMenu") || w->inherits("QLineEditIconButton"))
                continue;
            ++controls;
            QAccessibleInterface *face = QAccessible::queryAccessibleInterface(w);
            if (!face || face->text(QAccessible::Name).trimmed().isEmpty())
                unnamed << QStringLiteral("%1 %2 in %3")
                               .arg(QString::fromLatin1(w->metaObject()->className()), w->objectName(),
                                   QString::fromLatin1(window->metaObject()->className()));
        }
    }
    QVERIFY(controls > 100);
    QVERIFY2(unnamed.isEmpty(), qPrintable(unnamed.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TestWindowFit)
#include "TestWindowFit.moc"
