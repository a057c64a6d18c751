#include "cli/AddItemCommand.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "cli/AttributeText.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "domain/Record.h"
#include "domain/UnitCodes.h"

#include <QCommandLineParser>

#include <QCoreApplication>
#include <utility>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(AddItemCommand)
};
} // namespace

namespace tabo::cli {

AddItemCommand::AddItemCommand(Session &session)
    : Command(session, QStringLiteral("add-item"), QStringLiteral("ID KEY=VALUE..."),
        Tr::tr("Add a line to a document as the item popover does, e.g. title=Consulting "
               "price=100 quantity=2 tax1=1 (also subtitle, unit, unitCode, sku, note; baseAmount, "
               "unitCount, isTax1Applied..3 are the same fields). Rates, tax titles and compound "
               "flags come from the preferences; any other line attribute is set afterwards. "
               "The catalogue remembers the line. Prints the line's unique ID."))
{
}

Result<bool> AddItemCommand::popoverField(ItemFields &f, const QString &key, const QString &value)
{
    const auto is = [&key](const char *name) { return key == QLatin1String(name); };
    const auto flag = [&](bool *box) -> Result<bool> {
        if (Error e = AttributeText::flag(key, value, box))
            return e;
        return true;
    };
    if (is("title"))
        f.title = value;
    else if (is("subtitle"))
        f.subtitle = value;
    else if (is("unit"))
        f.unit = value;
    else if (is("unitCode"))
        if (UnitCodes::isCode(value))
            f.unitCode = value.toUpper();
        else
            return Error::input(Tr::tr("“%1” is not a unit code of UN/ECE Recommendation 20 (such as HUR, "
                                       "C62, DAY).")
                                    .arg(value));
    else if (is("sku"))
        f.sku = value;
    else if (is("note"))
        f.note = value;
    else if (is("baseAmount") || is("price"))
        f.price = value;
    else if (is("unitCount") || is("quantity"))
        f.quantity = value;
    else if (is("isTax1Applied") || is("tax1"))
        return flag(&f.tax1);
    else if (is("isTax2Applied") || is("tax2"))
        return flag(&f.tax2);
    else if (is("isTax3Applied") || is("tax3"))
        return flag(&f.tax3);
    else
        return false;
    return true;
}

int AddItemCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parse(parser, args, 1, -1, &code, true))
        return code;
    QStringList pos = parser.positionalArguments();
    const QString id = pos.takeFirst();
    KeyValues values;
    if (!splitKeyValues(pos, {}, &values, &code))
        return code;

    // Everything is checked before the line exists, so that a bad value
    // leaves the document as it was.
    ItemFields fields;
    // An empty field of the popover reads as 0.
    fields.price = fields.quantity = QStringLiteral("0");
    QList<std::pair<QString, QVariant>> edits;
    for (const auto &[key, value] : std::as_const(values)) {
        const Result<bool> popover = popoverField(fields, key, value);
        if (!popover)
            return failure(popover.error().text);
        if (popover.value())
            continue;
        const Result<QVariant> typed = AttributeText::convert(entityDesc(EntityId::Item), key, value);
        if (!typed)
            return failure(typed.error().text);
        edits.append({key, typed.value()});
    }
    Record *doc = m_session.select(id);
    if (!doc)
        return kExitFailure;

    AppController &app = m_session.controller();
    ItemCommands &items = app.items();
    const Result<Record *> added = items.addItem(fields);
    if (!added)
        return failure(added.error().text);
    Record *item = added.value();
    const QString uniqueID = item->text(Item::uniqueID);
    for (const auto &[key, value] : std::as_const(edits)) {
        const int shown = m_session.ui().messagesShown();
        if (const Error e = items.editItem(item, key, value)) {
            // Half a line is worse than none.
            items.withdrawItem(item);
            // A refusal has been shown as an alert already.
            return m_session.ui().messagesShown() > shown ? kExitFailure : failure(e.text);
        }
    }
    if (m_session.ui().errorPresented())
        return kExitFailure;
    printOut(uniqueID);
    return kExitOk;
}

} // namespace tabo::cli
