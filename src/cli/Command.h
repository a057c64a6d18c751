#pragma once

#include "base/Date.h"
#include "base/Result.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>

class QCommandLineOption;
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
    // The error's sentence on stderr, unless it was shown already.
    static int failure(const Error &error);

    using KeyValues = QList<std::pair<QString, QString>>;
    // Splits KEY=VALUE words, in the order given. A word that is not one, or
    // a key outside `keys` (unless empty), is a usage error: false with
    // `exitCode` set.
    bool splitKeyValues(const QStringList &words, const QStringList &keys, KeyValues *out, int *exitCode) const;
    // An ISO 8601 date or moment of --from/--to; a bare day covers the whole
    // day, as the window's date pickers do.
    static std::optional<Date> rangeDate(const QString &text, bool end);
    // --yes: confirm the questions the command asks.
    static QCommandLineOption yesOption();
    // --filter TAG, the document list's filter; --search TEXT, its search.
    static QCommandLineOption filterOption();
    static QCommandLineOption searchOption();
    // Arranges the controller's list by the filter tag and, when given, the
    // search: what list, report and account book are made of.
    void arrangeList(const QCommandLineParser &parser, unsigned tag);
    // The tag given with --filter (0 without it); false with `exitCode` set
    // after a usage error.
    bool filterTag(const QCommandLineParser &parser, unsigned *tag, int *exitCode) const;
    // parse() with --yes added (after any options already on the parser);
    // the answer goes to the command-line interaction.
    bool parseConfirmed(QCommandLineParser &parser, const QStringList &args, int minPositional, int maxPositional,
                        int *exitCode) const;

    // "ID KEY=VALUE...": selects the document, starts from the popover's
    // current fields, applies each pair and confirms the popover.
    template <typename Fields, typename Current, typename Apply, typename Confirm>
    int editPopoverFields(const QStringList &args, const QStringList &keys, Current current, Apply apply,
                          Confirm confirm)
    {
        int code = 0;
        QStringList pos;
        if (!selectDocumentWithPairs(args, keys, &pos, &code))
            return code;
        KeyValues values;
        splitKeyValues(pos, keys, &values, &code);
        Fields fields = current();
        for (const auto &[key, value] : std::as_const(values))
            if (const Error e = apply(fields, key, value))
                return failure(e.text);
        if (const Error e = confirm(fields))
            return failure(e.text);
        return popoverResult();
    }

    Session &m_session;

private:
    // The shared first half of editPopoverFields: usage, pairs and document;
    // `rest` receives the KEY=VALUE words.
    bool selectDocumentWithPairs(const QStringList &args, const QStringList &keys, QStringList *rest,
                                 int *exitCode);
    int popoverResult() const;

    QString m_name;
    QString m_arguments;
    QString m_description;
};

} // namespace tabo::cli
