#include "cli/CatalogueCommand.h"

#include "app/AppController.h"
#include "app/DocumentCommands.h"
#include "app/ItemCommands.h"
#include "cli/AttributeText.h"
#include "cli/Console.h"
#include "cli/JsonWriter.h"
#include "cli/Session.h"
#include "domain/Record.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QHash>

#include <QCoreApplication>
#include <algorithm>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(CatalogueCommand)
};
} // namespace

namespace tabo::cli {

CatalogueCommand::CatalogueCommand(Session &session)
    : Command(session, QStringLiteral("catalogue"),
        QStringLiteral("list|shipping [--json] | edit ENTRY KEY=VALUE... | delete ENTRY... --yes"),
        Tr::tr("List the article catalogue (title, price, article number, unit) or the "
               "remembered shipping lines (title, amount), by title; change an entry (title, subtitle, "
               "unit, sku, note, price, tax1..tax3) or delete entries. ENTRY is a title, an article "
               "number or a uniqueID."))
{
}

Record *CatalogueCommand::entry(const QString &name) const
{
    QList<Record *> found;
    for (Record *e : m_session.controller().items().catalogue()) {
        if (e->text(RecentItem::uniqueID) == name || e->text(RecentItem::sku) == name
            || e->text(RecentItem::title).compare(name, Qt::CaseInsensitive) == 0)
            found << e;
    }
    if (found.size() == 1)
        return found.first();
    if (found.isEmpty()) {
        failure(Tr::tr("The catalogue has no entry “%1”.").arg(name));
    } else {
        QStringList ids;
        for (const Record *e : std::as_const(found))
            ids << e->text(RecentItem::uniqueID);
        failure(ambiguousName(name, QStringLiteral("entries"), ids));
    }
    return nullptr;
}

int CatalogueCommand::edit(const QStringList &pos)
{
    if (pos.size() < 3)
        return usageError(Tr::tr("Give the entry and at least one KEY=VALUE."));
    static const QHash<QString, QString> keys = {
        {QStringLiteral("title"), QStringLiteral("title")},       {QStringLiteral("subtitle"), QStringLiteral("subtitle")},
        {QStringLiteral("unit"), QStringLiteral("unit")},         {QStringLiteral("sku"), QStringLiteral("sku")},
        {QStringLiteral("note"), QStringLiteral("note")},         {QStringLiteral("price"), QStringLiteral("baseAmount")},
        {QStringLiteral("baseAmount"), QStringLiteral("baseAmount")}, {QStringLiteral("tax1"), QStringLiteral("isTax1Applied")},
        {QStringLiteral("tax2"), QStringLiteral("isTax2Applied")}, {QStringLiteral("tax3"), QStringLiteral("isTax3Applied")}};
    int code = kExitOk;
    KeyValues values;
    QStringList known = keys.keys();
    known.sort();
    if (!splitKeyValues(pos.mid(2), known, &values, &code))
        return code;
    Record *e = entry(pos.at(1));
    if (!e)
        return kExitFailure;
    ItemCommands &items = m_session.controller().items();
    for (const auto &[key, value] : std::as_const(values)) {
        const QString attr = keys.value(key);
        QVariant typed = value;
        if (attr.startsWith(QLatin1String("isTax"))) {
            bool flag = false;
            if (const Error e = AttributeText::flag(key, value, &flag))
                return failure(e.text);
            typed = flag;
        }
        if (const Error refused = items.editCatalogueEntry(e, attr, typed))
            return failure(refused.text);
    }
    return kExitOk;
}

int CatalogueCommand::remove(const QStringList &pos)
{
    if (pos.size() < 2)
        return usageError(Tr::tr("Give the entries to delete."));
    QList<Record *> entries;
    for (const QString &name : pos.mid(1)) {
        Record *e = entry(name);
        if (!e)
            return kExitFailure;
        if (!entries.contains(e))
            entries << e;
    }
    return m_session.controller().items().deleteCatalogueEntries(entries) ? kExitOk : kExitFailure;
}

int CatalogueCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption json(QStringLiteral("json"), Tr::tr("Print JSON."));
    parser.addOption(json);
    int code = kExitOk;
    if (!parseConfirmed(parser, args, 1, -1, &code))
        return code;
    const QStringList pos = parser.positionalArguments();
    const QString what = pos.constFirst();
    if (what == QLatin1String("edit"))
        return m_session.store() ? edit(pos) : kExitFailure;
    if (what == QLatin1String("delete"))
        return m_session.store() ? remove(pos) : kExitFailure;
    const bool articles = what == QLatin1String("list");
    if (!articles && what != QLatin1String("shipping"))
        return usageError(Tr::tr("Unknown catalogue “%1”.").arg(what));
    if (pos.size() > 1)
        return usageError();
    if (!m_session.store())
        return kExitFailure;

    AppController &app = m_session.controller();
    const QList<Record *> entries = articles ? app.items().catalogue() : app.items().rememberedShippings();
    app.documents().loadFully(entries);
    QStringList lines;
    for (const Record *e : std::as_const(entries)) {
        if (parser.isSet(json))
            lines << JsonWriter::record(*e);
        else if (articles)
            lines << QStringList{e->text(RecentItem::title), AttributeText::plain(*e, RecentItem::baseAmount),
                                 e->text(RecentItem::sku), e->text(RecentItem::unit)}
                         .join(QLatin1Char('\t'));
        else
            lines << e->text(RecentShipping::title) + QLatin1Char('\t')
                         + AttributeText::plain(*e, RecentShipping::amount);
    }
    if (parser.isSet(json))
        printOut(QLatin1Char('[') + lines.join(QStringLiteral(",\n")) + QLatin1Char(']'));
    else if (!lines.isEmpty())
        printOut(lines.join(QLatin1Char('\n')));
    return kExitOk;
}

} // namespace tabo::cli
