#include "WindowFixture.h"

#include "app/Translations.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "gui/main/DocumentListPane.h"
#include "gui/main/DocumentTableModel.h"
#include "gui/preferences/FirstStartAssistant.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QMenuBar>
#include <QRegularExpression>
#include <QToolBar>
#include <QTranslator>
#include <QWidgetAction>
#include <QWizardPage>
#include <QXmlStreamReader>
#include <QtTest>

using namespace tabo;

class TestTranslations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void germanWindowShowsNoEnglish();
    void missingTranslationLeavesEnglish();
};

namespace {

// Every translation the German file holds: a visible text that is none of
// them was never put through the translator.
QSet<QString> germanTexts()
{
    QFile file(QStringLiteral(TABO_SOURCE_DIR "/translations/tabo_de.ts"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QSet<QString> texts;
    QXmlStreamReader xml(&file);
    while (xml.readNextStartElement() || !xml.atEnd()) {
        if (xml.isStartElement() && xml.name() == QLatin1String("translation"))
            texts << xml.readElementText();
    }
    return texts;
}

QString bare(QString text)
{
    text.remove(QLatin1Char('&'));
    return text.trimmed();
}

void removeTranslators()
{
    for (QTranslator *t : QCoreApplication::instance()->findChildren<QTranslator *>())
        QCoreApplication::removeTranslator(t), delete t;
}

} // namespace

void TestTranslations::germanWindowShowsNoEnglish()
{
    qputenv("LANGUAGE", "de");
    const QString loaded
        = installTranslations(*QCoreApplication::instance(), { QStringLiteral(TABO_TRANSLATIONS_DIR) });
    QVERIFY2(loaded.endsWith(QLatin1String("tabo_de.qm")), qPrintable(loaded));
    const QSet<QString> german = germanTexts();
    QVERIFY(german.size() > 500);

    test::WindowFixture f;
    f.prefs.setBool(Preferences::isTabo2TemplateLoadingDone, true);
    f.window = std::make_unique<MainWindow>(f.app);
    f.window->show();

    QStringList english;
    const auto check = [&](const QString &where, const QString &text) {
        const QString shown = bare(text);
        if (shown.contains(QRegularExpression(QStringLiteral("[A-Za-z]{2}"))) && !german.contains(shown)
            && !german.contains(text))
            english << where + QStringLiteral(": ") + shown;
    };
    std::function<void(QMenu *)> walk = [&](QMenu *menu) {
        check(QStringLiteral("menu"), menu->title());
        for (QAction *action : menu->actions()) {
            if (action->menu())
                walk(action->menu());
            else if (!action->isSeparator() && !action->text().isEmpty())
                check(menu->title(), action->text());
        }
    };
    for (QAction *top : f.window->menuBar()->actions())
        if (top->menu())
            walk(top->menu());
    for (QToolBar *bar : f.window->findChildren<QToolBar *>())
        for (QAction *action : bar->actions())
            if (!action->isSeparator() && !action->text().isEmpty() && !qobject_cast<QWidgetAction *>(action))
                check(QStringLiteral("toolbar"), action->text());

    // One row of each status, and a quote.
    f.window->newQuoteAction()->trigger();
    for (int status = 0; status <= 4; ++status) {
        f.window->newInvoiceAction()->trigger();
        Record *doc = f.app.currentInvoice();
        doc->setInt(Invoice::status, status);
        // Overdue is a sent invoice past its due date.
        doc->setDate(Invoice::due, doc->date(Invoice::date).addDays(status == 2 ? -30 : 30));
    }
    f.app.calculateDatabase();
    DocumentTableModel *model = f.window->documentList()->model();
    QCOMPARE(model->rowCount(), 6);
    QSet<QString> statuses;
    for (int row = 0; row < model->rowCount(); ++row) {
        statuses << model->index(row, DocumentTableModel::Status).data().toString();
        check(QStringLiteral("status"), statuses.values().last());
    }
    QCOMPARE(statuses.size(), 6);
    check(QStringLiteral("status header"), model->headerData(DocumentTableModel::Status, Qt::Horizontal).toString());

    FirstStartAssistant assistant(f.app);
    assistant.show();
    check(QStringLiteral("assistant"), assistant.windowTitle());
    for (int id : assistant.pageIds()) {
        QWizardPage *page = assistant.page(id);
        check(QStringLiteral("assistant"), page->title());
        for (QLabel *label : page->findChildren<QLabel *>())
            if (!label->text().isEmpty())
                check(QStringLiteral("assistant"), label->text());
        for (QAbstractButton *button : page->findChildren<QAbstractButton *>())
            check(QStringLiteral("assistant"), button->text());
        for (QComboBox *box : page->findChildren<QComboBox *>())
            for (int i = 0; i < box->count(); ++i)
                check(QStringLiteral("assistant"), box->itemText(i));
    }
    // The wizard's own buttons come from Qt's translation.
    check(QStringLiteral("assistant"), assistant.button(QWizard::CancelButton)->text());

    QVERIFY2(english.isEmpty(), qPrintable(english.join(QStringLiteral("\n"))));
    removeTranslators();
}

void TestTranslations::missingTranslationLeavesEnglish()
{
    // German asked for, but no file where the program looks: English, and
    // nothing installed (tests/cli covers a language nobody translated).
    removeTranslators();
    qputenv("LANGUAGE", "de");
    QVERIFY(installTranslations(*QCoreApplication::instance(), { QStringLiteral("/nonexistent") }).isEmpty());
    QVERIFY(QCoreApplication::instance()->findChildren<QTranslator *>().isEmpty());
    QCOMPARE(DocumentTableModel::tr("Paid"), QStringLiteral("Paid"));
}

QTEST_MAIN(TestTranslations)
#include "TestTranslations.moc"
