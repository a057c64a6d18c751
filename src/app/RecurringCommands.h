#pragma once

#include "base/Result.h"
#include "store/ScheduleTable.h"

#include <QHash>
#include <QList>
#include <QString>

namespace tabo {

class DocumentNumbers;
class ListedDocuments;
class Preferences;
class Record;
class StoreAccess;

// Invoices that write themselves: a schedule copies an invoice or a template
// on each of its dates. A run writes every date that has come, also those
// missed while the computer was off, each in the transaction that raises the
// schedule's count, so no date is billed twice, whichever process runs it.
class RecurringCommands
{
public:
    RecurringCommands(StoreAccess &store, ListedDocuments &list, DocumentNumbers &numbers, Preferences &prefs)
        : m_store(store)
        , m_list(list)
        , m_numbers(numbers)
        , m_prefs(prefs)
    {
    }

    // `source` is an invoice (by uniqueID or number) or a template's name.
    // Refused with a sentence when it names neither, or the recurrence is
    // not one. The new schedule's id is in the result.
    Result<Schedule> add(const QString &source, const Recurrence &recurrence, bool send);
    Result<QList<Schedule>> list();
    Error setPaused(qint64 id, bool paused);
    Error remove(qint64 id);

    struct Made
    {
        qint64 schedule = 0;
        QDate day;
        Record *invoice = nullptr; // nullptr in a dry run
        bool send = false;
    };
    struct Run
    {
        QList<Made> made;
        // Schedules whose document or template is gone, one sentence each.
        QStringList problems;
    };
    // Writes the invoices of every date up to `today`. A dry run only says
    // which it would write.
    Result<Run> run(QDate today, bool dryRun = false);

    // "Invoice RE-12 (Kunde GmbH)" or "Template “Hosting”": what a schedule copies.
    QString sourceName(const Schedule &schedule);

    // What %PERIOD% becomes in an invoice of `day`: in the documents' language.
    QString periodLabel(const Schedule &schedule, QDate day) const;

private:
    // The invoices by uniqueID and the templates by name, read once for a
    // run over many schedules.
    struct Sources
    {
        QHash<QString, Record *> invoices;
        QHash<QString, Record *> templates;
    };
    Sources sources();
    static Record *findSource(const Schedule &schedule, const Sources &sources);
    Record *findSource(const Schedule &schedule) { return findSource(schedule, sources()); }
    Record *makeInvoice(const Record &source, const Schedule &schedule, QDate day);

    StoreAccess &m_store;
    ListedDocuments &m_list;
    DocumentNumbers &m_numbers;
    Preferences &m_prefs;
};

} // namespace tabo
