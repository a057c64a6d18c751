#include "cli/CatalogueCommand.h"

#include "cli/AttributeText.h"
#include "cli/Console.h"
#include "cli/JsonWriter.h"
#include "cli/Session.h"
#include "domain/Record.h"
#include "store/Store.h"

#include <QCommandLineOption>
#include <QCommandLineParser>

#include <algorithm>

namespace tabo::cli {

CatalogueCommand::CatalogueCommand(Session &session)
    : Command(session, QStringLiteral("catalogue"), QStringLiteral("list|shipping [--json]"),
              QStringLiteral("List the article catalogue (title, price, article number, unit) or the "
                             "remembered shipping lines (title, amount), by title."))
{
}

int CatalogueCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption json(QStringLiteral("json"), QStringLiteral("Print JSON."));
    parser.addOption(json);
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    const QString what = parser.positionalArguments().constFirst();
    const bool articles = what == QLatin1String("list");
    if (!articles && what != QLatin1String("shipping"))
        return usageError(QStringLiteral("Unknown catalogue “%1”.").arg(what));
    Store *store = m_session.store();
    if (!store)
        return kExitFailure;

    QList<Record *> entries = store->all(articles ? EntityId::RecentItem : EntityId::RecentShipping);
    store->loadFully(entries);
    const int title = articles ? int(RecentItem::title) : int(RecentShipping::title);
    std::stable_sort(entries.begin(), entries.end(), [title](const Record *a, const Record *b) {
        return a->text(title).localeAwareCompare(b->text(title)) < 0;
    });
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
