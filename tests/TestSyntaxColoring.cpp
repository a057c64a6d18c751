#include "TestSupport.h"

#include "editing/SyntaxColoring.h"
#include "editing/SyntaxColorizer.h"
#include "editing/SyntaxDefinition.h"
#include "prefs/Preferences.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QtTest>

using namespace tabo;
using namespace Qt::StringLiterals;
using SyntaxColoring::Range;

namespace {

// The mode names of `text`, one letter per character ('.' for plain), so
// that a whole colouring reads as one string.
QString modeLine(const QString &text, const SyntaxDefinition &definition)
{
    const SyntaxColoring::Modes modes = SyntaxColoring::colorText(text, definition);
    QString out;
    for (std::uint8_t m : modes)
        out += m ? definition.modeName(m).front() : QLatin1Char('.');
    return out;
}

} // namespace

class TestSyntaxColoring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void definitionsFromResources();
    void passes();
    void rangeAfterEdit();
    void colorizerFollowsEdits();
};

void TestSyntaxColoring::definitionsFromResources()
{
    const SyntaxDefinition html = SyntaxDefinition::load(u"HTML"_s);
    const SyntaxDefinition css = SyntaxDefinition::load(u"CSS"_s);
    QVERIFY(!html.isEmpty());
    QVERIFY(!css.isEmpty());
    QVERIFY(SyntaxDefinition::load(u"Nothing"_s).isEmpty());

    // A colour the user never changed follows the registered default; a
    // changed one wins over it.
    test::TempHome home;
    Preferences prefs(home.configFile());
    SyntaxDefinition::registerColorDefaults(prefs);
    QVERIFY(QColor::fromString(prefs.string(Preferences::syntaxComments)).isValid());
    QVERIFY(!prefs.contains(Preferences::syntaxComments));
    const int comments = css.modeOf(u"Comments"_s);
    QCOMPARE(css.withPreferences(prefs).modeColor(comments).name(), prefs.string(Preferences::syntaxComments));
    prefs.setString(Preferences::syntaxComments, u"#123456"_s);
    QCOMPARE(css.withPreferences(prefs).modeColor(comments), QColor(0x12, 0x34, 0x56));

    // Components that cannot run are left out, not guessed at.
    const SyntaxDefinition broken = SyntaxDefinition::fromDictionary(
        {{u"Components"_s, QVariantList{QVariantMap{{u"Type"_s, u"String"_s}, {u"Name"_s, u"Strings"_s}},
                                        QVariantMap{{u"Type"_s, u"Sparkle"_s}, {u"Name"_s, u"Tags"_s}}}}});
    QVERIFY(broken.isEmpty());
}

void TestSyntaxColoring::passes()
{
    const SyntaxDefinition css = SyntaxDefinition::load(u"CSS"_s);
    const SyntaxDefinition html = SyntaxDefinition::load(u"HTML"_s);

    // An escaped quote stays inside its string.
    QCOMPARE(modeLine(u"a{content:\"x\\\"y\";}"_s, css), u"..IIIIIII.SSSSSS.."_s);
    // A keyword inside a longer identifier stays plain.
    QCOMPARE(modeLine(u"colorful color"_s, css), u".........IIIII"_s);
    // An unclosed comment runs to the end.
    QCOMPARE(modeLine(u"b{} /* open\nwidth"_s, css), u"....CCCCCCCCCCCC"_s.leftJustified(17, u'C'));
    // A "<" inside a comment is no tag.
    QCOMPARE(modeLine(u"<!-- a<b --><i>"_s, html), u"CCCCCCCCCCCCTIT"_s);

    // One-line comments and the user's own identifiers.
    test::TempHome home;
    Preferences prefs(home.configFile());
    prefs.setRaw(u"SyntaxColoring:UserIdentifiers"_s, QStringList{u"mine"_s});
    const SyntaxDefinition custom = SyntaxDefinition::fromDictionary({{u"Components"_s, QVariantList{
        QVariantMap{{u"Type"_s, u"OneLineComment"_s}, {u"Name"_s, u"Comments2"_s}, {u"Start"_s, u"//"_s}},
        QVariantMap{{u"Type"_s, u"UserIdentifiers"_s}, {u"Name"_s, u"Identifiers2"_s}, {u"Charset"_s, u"a-z"_s}}}}})
                                           .withPreferences(prefs);
    QCOMPARE(modeLine(u"mine // x\nmine"_s, custom), u"IIII.CCCC.IIII"_s);
}

void TestSyntaxColoring::rangeAfterEdit()
{
    const QString text = u"one\n/* two\nthree */\nfour"_s;
    const SyntaxDefinition css = SyntaxDefinition::load(u"CSS"_s);
    const SyntaxColoring::Modes modes = SyntaxColoring::colorText(text, css);

    // Typing inside a comment takes in the whole comment.
    QCOMPARE(SyntaxColoring::rangeToRecolor(text, modes, {12, 1}, true), (Range{4, 15}));
    // Outside it, the edited line only.
    QCOMPARE(SyntaxColoring::rangeToRecolor(text, modes, {1, 1}, true), (Range{0, 3}));
    QCOMPARE(SyntaxColoring::rangeToRecolor(text, modes, {20, 1}, true), (Range{20, 4}));
    // Attributes only: one character of context on each side, whole lines.
    QCOMPARE(SyntaxColoring::rangeToRecolor(text, modes, {3, 0}, false), (Range{0, 10}));
    QCOMPARE(SyntaxColoring::rangeToRecolor(u"ab"_s, {0, 0}, {1, 1}, false), (Range{0, 2}));
    QCOMPARE(SyntaxColoring::rangeToRecolor(u"ab"_s, {0, 0}, {0, 0}, true), Range{});

    QCOMPARE(SyntaxColoring::indentationBefore(u"x\n \t  <td>"_s, 10), u" \t  "_s);
    QCOMPARE(SyntaxColoring::indentationBefore(u"<td>"_s, 4), QString());
}

void TestSyntaxColoring::colorizerFollowsEdits()
{
    test::TempHome home;
    Preferences prefs(home.configFile());
    SyntaxDefinition::registerColorDefaults(prefs);
    QTextDocument doc;
    doc.setPlainText(u"p { color: red; }\n/* a\nlong\ncomment */\n  <td>"_s);
    SyntaxColorizer colorizer(u"CSS"_s, prefs, &doc);
    QCOMPARE(colorizer.modeAt(4), u"Identifiers"_s);
    QCOMPARE(colorizer.colorAt(4), colorizer.definition().modeColor(colorizer.definition().modeOf(u"Identifiers"_s)));
    QCOMPARE(colorizer.colorAt(0), QColor());

    // Closing the comment early recolours all of it at once.
    QTextCursor cursor(&doc);
    cursor.setPosition(doc.toPlainText().indexOf(u"long"_s));
    cursor.insertText(u"*/"_s);
    QCOMPARE(colorizer.lastRecolored().location, 18);
    QCOMPARE(colorizer.modeAt(doc.toPlainText().indexOf(u"long"_s)), QString());
    QCOMPARE(colorizer.modeAt(doc.toPlainText().indexOf(u"a\n"_s)), u"Comments"_s);

    // A return on an indented line starts the new line with the same run.
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(u"\n"_s);
    QTRY_COMPARE(doc.toPlainText().section(u'\n', -1), u"  "_s);
    QCOMPARE(cursor.position(), doc.toPlainText().size());
    doc.undo();
    QVERIFY(doc.toPlainText().endsWith(u"<td>"_s));

    // Pastes over several lines, a non-breaking space, undo and redo: the
    // colorizer's view of the text stays the document's, so its modes are
    // those of a fresh pass.
    doc.setPlainText(u"a { color: red; }\nb { width: 1px; }"_s);
    cursor = QTextCursor(&doc);
    cursor.setPosition(2);
    cursor.insertText(u"{}\ni\u00a0{ color:\tblue; }\n"_s);
    cursor.setPosition(5);
    cursor.setPosition(9, QTextCursor::KeepAnchor);
    cursor.insertText(u"width"_s);
    doc.undo();
    doc.redo();
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(u"\r\nc { color: green }"_s);
    const QString now = doc.toPlainText();
    const SyntaxColoring::Modes fresh = SyntaxColoring::colorText(now, colorizer.definition());
    for (qsizetype i = 0; i < now.size(); ++i)
        QCOMPARE(colorizer.modeAt(i), fresh[i] ? colorizer.definition().modeName(fresh[i]) : QString());
    QCOMPARE(colorizer.modeAt(now.lastIndexOf(u"color"_s)), u"Identifiers"_s);

    // A user's colour reaches the text.
    prefs.setString(Preferences::syntaxIdentifiers, u"#010203"_s);
    colorizer.reloadColors();
    QCOMPARE(colorizer.colorAt(now.lastIndexOf(u"color"_s)), QColor(1, 2, 3));
}

QTEST_MAIN(TestSyntaxColoring)
#include "TestSyntaxColoring.moc"
