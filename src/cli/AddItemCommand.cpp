#include "cli/AddItemCommand.h"

#include "app/AppController.h"
#include "cli/AttributeText.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "domain/Clock.h"
#include "domain/Record.h"
#include "domain/UniqueId.h"
#include "prefs/Preferences.h"
#include "store/Store.h"

#include <QCommandLineParser>

#include <utility>

namespace tabo::cli {

AddItemCommand::AddItemCommand(Session &session)
    : Command(session, QStringLiteral("add-item"), QStringLiteral("ID KEY=VALUE..."),
              QStringLiteral("Add a line to a document, e.g. title=Consulting baseAmount=100 unitCount=2 "
                             "isTax1Applied=1; rates, tax titles and compound flags come from the "
                             "preferences unless given. Prints the line's unique ID."))
{
}

void AddItemCommand::setDefaults(Record &item)
{
    // As a line added in the window starts out.
    const Preferences &prefs = m_session.prefs();
    using P = Preferences;
    for (int a : {Item::title, Item::subtitle, Item::unit, Item::sku, Item::note, Item::misc1})
        item.setText(a, QStringLiteral(""));
    item.setText(Item::tax1Title, prefs.string(P::tax1Title));
    item.setText(Item::tax2Title, prefs.string(P::tax2Title));
    item.setText(Item::tax3Title, prefs.string(P::tax3Title));
    item.setSingle(Item::baseAmount, 0.0f);
    item.setSingle(Item::unitCount, 0.0f);
    for (int a : {Item::isTax1Applied, Item::isTax2Applied, Item::isTax3Applied, Item::misc4})
        item.setBool(a, false);
    item.setBool(Item::isTax2Compound, prefs.boolean(P::tax2IsCompound));
    item.setBool(Item::isTax3Compound, prefs.boolean(P::tax3IsCompound));
    item.setSingle(Item::tax1Percent, prefs.single(P::tax1Rate));
    item.setSingle(Item::tax2Percent, prefs.single(P::tax2Rate));
    item.setSingle(Item::tax3Percent, prefs.single(P::tax3Rate));
    for (int a : {Item::subAmount, Item::amount, Item::tax1Amount, Item::tax2Amount, Item::tax3Amount, Item::misc3})
        item.setNum(a, 0.0);
    item.setInt(Item::misc2, 0);
    item.setDate(Item::misc5, now());
}

int AddItemCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parse(parser, args, 1, -1, &code, true))
        return code;
    QStringList pos = parser.positionalArguments();
    const QString id = pos.takeFirst();
    QList<std::pair<QString, QString>> values;
    for (const QString &word : std::as_const(pos)) {
        const qsizetype eq = word.indexOf(QLatin1Char('='));
        if (eq <= 0)
            return usageError(QStringLiteral("“%1” is not KEY=VALUE.").arg(word));
        values.append({word.left(eq), word.mid(eq + 1)});
    }

    Record *doc = m_session.document(id);
    if (!doc)
        return kExitFailure;
    Store *store = m_session.store();
    Record *item = store->insert(EntityId::Item);
    setDefaults(*item);
    item->setText(Item::uniqueID, newUniqueId());
    for (const auto &[key, value] : std::as_const(values)) {
        QString reason;
        if (!AttributeText::assign(*item, key, value, &reason)) {
            store->remove(item); // nothing half-made is left for the save at exit
            return failure(reason);
        }
    }
    item->setToOne(Item::invoice, doc);
    m_session.controller().calculateInvoice(doc);
    if (m_session.controller().saveContext())
        return kExitFailure;
    printOut(item->text(Item::uniqueID));
    return kExitOk;
}

} // namespace tabo::cli
