#pragma once

#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace tabo::cli {

class Session;

// One sub-command of tabo-cli: its name, its usage line and its work.
class Command
{
public:
    Command(Session &session, QString name, QString arguments, QString description);
    virtual ~Command();
    Command(const Command &) = delete;
    Command &operator=(const Command &) = delete;

    const QString &name() const { return m_name; }
    const QString &description() const { return m_description; }
    // "tabo-cli NAME ARGUMENTS"
    QString usage() const;

    // `args` are the words after the command's name. Returns the exit code.
    virtual int execute(const QStringList &args) = 0;

protected:
    // Parses `args`; a bad option or a positional count outside min..max is
    // reported as a usage error. False when the command must end with
    // `exitCode` (2 after a usage error, 0 after --help). With `optionsFirst`
    // everything after the first argument is an argument, so that values such
    // as "-5" need no "--".
    bool parse(QCommandLineParser &parser, const QStringList &args, int minPositional, int maxPositional,
               int *exitCode, bool optionsFirst = false) const;
    int usageError(const QString &reason = QString()) const;
    static int failure(const QString &line);

    Session &m_session;

private:
    QString m_name;
    QString m_arguments;
    QString m_description;
};

} // namespace tabo::cli
