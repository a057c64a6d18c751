#include "cli/DiscountCommand.h"

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
    Q_DECLARE_TR_FUNCTIONS(DiscountCommand)
};
} // namespace

namespace tabo::cli {

namespace {

const QStringList kKeys{QStringLiteral("enabled"), QStringLiteral("kind"),     QStringLiteral("amount"),
                        QStringLiteral("percent"), QStringLiteral("title"),    QStringLiteral("subtitle"),
                        QStringLiteral("hasSubtitle")};

Error apply(DiscountFields &f, const QString &key, const QString &value)
{
    if (key == QLatin1String("title")) {
        f.title = value;
    } else if (key == QLatin1String("subtitle")) {
        f.subtitle = value;
    } else if (key == QLatin1String("amount")) {
        f.amount = value;
    } else if (key == QLatin1String("percent")) {
        f.percent = value;
    } else if (key == QLatin1String("enabled")) {
        return AttributeText::flag(key, value, &f.enabled);
    } else if (key == QLatin1String("hasSubtitle")) {
        return AttributeText::flag(key, value, &f.hasSubtitle);
    } else if (key == QLatin1String("kind")) {
        bool ok = false;
        f.kind = value.trimmed().toInt(&ok);
        if (!ok)
            return Error::input(Tr::tr("“%1” is not a valid kind; 0 is a fixed amount, 1 a percentage.").arg(value));
    }
    return {};
}

} // namespace

DiscountCommand::DiscountCommand(Session &session)
    : Command(session, QStringLiteral("discount"), QStringLiteral("ID KEY=VALUE..."),
        Tr::tr("Edit the discount (keys: ") + kKeys.join(QStringLiteral(", "))
            + Tr::tr("); kind 0 takes the amount, any other the percent (19 means 19 %); "
                     "keys not given keep their values."))
{
}

int DiscountCommand::execute(const QStringList &args)
{
    ItemCommands &items = m_session.controller().items();
    return editPopoverFields<DiscountFields>(
        args, kKeys, [&] { return items.discountFields(); }, apply,
        [&](const DiscountFields &fields) { return items.closeDiscountPopover(fields); });
}

} // namespace tabo::cli
