#include "cli/ShippingCommand.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "cli/AttributeText.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ShippingCommand)
};
} // namespace

namespace tabo::cli {

namespace {

const QStringList kKeys{QStringLiteral("enabled"), QStringLiteral("title"),   QStringLiteral("subtitle"),
                        QStringLiteral("hasSubtitle"), QStringLiteral("amount"), QStringLiteral("tax1"),
                        QStringLiteral("tax2"),    QStringLiteral("tax3"),     QStringLiteral("note")};

Error apply(ShippingFields &f, const QString &key, const QString &value)
{
    if (key == QLatin1String("title"))
        f.title = value;
    else if (key == QLatin1String("subtitle"))
        f.subtitle = value;
    else if (key == QLatin1String("amount"))
        f.amount = value;
    else if (key == QLatin1String("note"))
        f.note = value;
    else if (key == QLatin1String("enabled"))
        return AttributeText::flag(key, value, &f.enabled);
    else if (key == QLatin1String("hasSubtitle"))
        return AttributeText::flag(key, value, &f.hasSubtitle);
    else if (key == QLatin1String("tax1"))
        return AttributeText::flag(key, value, &f.tax1);
    else if (key == QLatin1String("tax2"))
        return AttributeText::flag(key, value, &f.tax2);
    else if (key == QLatin1String("tax3"))
        return AttributeText::flag(key, value, &f.tax3);
    return {};
}

} // namespace

ShippingCommand::ShippingCommand(Session &session)
    : Command(session, QStringLiteral("shipping"), QStringLiteral("ID KEY=VALUE..."),
        Tr::tr("Edit the shipping line (keys: ") + kKeys.join(QStringLiteral(", "))
            + Tr::tr("); keys not given keep their values. The line is remembered for "
                     "later unless one with the same title and amount is."))
{
}

int ShippingCommand::execute(const QStringList &args)
{
    ItemCommands &items = m_session.controller().items();
    return editPopoverFields<ShippingFields>(
        args, kKeys, [&] { return items.shippingFields(); }, apply,
        [&](const ShippingFields &fields) { return items.closeShippingPopover(fields); });
}

} // namespace tabo::cli
