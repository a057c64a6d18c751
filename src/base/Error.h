#pragma once

#include <QString>

namespace tabo {

// A failure passed on to whoever shows it to the person: the core never
// presents errors itself. An empty Error is success.
struct Error
{
    // Where it arose, for the few callers that react to one kind of failure
    // (a store conflict, an empty store file); `code` tells them which.
    enum Source { None, Tabo, File, Store, Print };

    Source source = None;
    int code = 0;
    // The sentence the person reads ("The changes could not be saved.").
    QString text;
    // Why, or what to do; shown under the sentence and kept in logs.
    QString detail;

    bool isError() const { return code != 0 || !text.isEmpty(); }
    explicit operator bool() const { return isError(); }

    // One line for logs and the command line.
    QString message() const { return detail.isEmpty() ? text : text + QLatin1Char(' ') + detail; }

    // Files Tabo reads and writes itself (stores, copies, design files): the
    // text says what happened to which file.
    static Error file(const QString &text) { return Error{File, 1, text, {}}; }
    // A refusal of the person's input, in a sentence for them.
    static Error input(const QString &text) { return Error{Tabo, 1, text, {}}; }
    // A refusal the person has been shown already (as an alert): whoever
    // receives it shows nothing more.
    static Error shownAlready() { return Error{Tabo, 2, {}, {}}; }
};

} // namespace tabo
