#pragma once

#include "base/Result.h"
#include "payments/Matching.h"

namespace tabo {

class Interaction;
class ListedDocuments;
class StoreAccess;
class UndoHistory;

// Money in: a bank statement read, its credits matched against the open
// invoices, and the accepted matches applied in one transaction that also
// records each booking, so that no booking is ever counted twice.
class PaymentCommands
{
public:
    PaymentCommands(StoreAccess &store, ListedDocuments &list, UndoHistory &undo, Interaction &ui)
        : m_store(store)
        , m_list(list)
        , m_undo(undo)
        , m_ui(ui)
    {
    }

    // The open panel for a statement; empty when cancelled.
    QString chooseStatement();
    // The headings of a CSV statement, for naming its columns; empty when
    // the file is no CSV table.
    QStringList csvHeadings(const QString &path) const;

    struct Review
    {
        payments::Statement statement;
        QList<payments::Proposal> proposals;
    };
    // Reads and matches; changes nothing but, when the person named the
    // columns of a CSV file (`columns`, as CsvColumns::toText writes them),
    // remembering them for files laid out like it.
    Result<Review> review(const QString &path, const QString &columns = {});

    // Applies each proposal's credit to its invoice: the paid amount rises;
    // paid in full, the invoice is paid on the booking day, else partly paid.
    // A booking another process took in meanwhile is left out; a paid
    // invoice's pending reminder is cancelled. One undo step takes it all
    // back, the bookings too. Returns how many were applied.
    Result<int> apply(const QList<payments::Proposal> &accepted);

private:
    StoreAccess &m_store;
    ListedDocuments &m_list;
    UndoHistory &m_undo;
    Interaction &m_ui;
};

} // namespace tabo
