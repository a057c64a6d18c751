#include "cli/Console.h"

#include <QCoreApplication>
#include <cstdio>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Console)
};
} // namespace

namespace tabo::cli {

void printOut(const QString &text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    if (!text.endsWith(QLatin1Char('\n')))
        std::fputc('\n', stdout);
}

void printError(const QString &line)
{
    // Scripts read one failure per line: never let a message span several.
    std::fputs(line.simplified().toUtf8().constData(), stderr);
    std::fputc('\n', stderr);
    std::fflush(stderr);
}

QString ambiguousName(const QString &name, const QString &what, const QStringList &ids)
{
    return Tr::tr("“%1” names %2 %3; use one of their unique IDs: %4.")
        .arg(name)
        .arg(ids.size())
        .arg(what, ids.join(QStringLiteral(", ")));
}

} // namespace tabo::cli
