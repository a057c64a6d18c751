#pragma once

#include "domain/Contacts.h"

#include <QList>
#include <QString>

namespace tabo {

class CurrentDocument;
class DocumentNumbers;
class Formatters;
class Interaction;
class ListedDocuments;
class Preferences;
class Record;
class StoreAccess;
class UndoHistory;

// Duplicate, convert and delete the current document. Every refusal and
// confirmation goes through the controller's Interaction with its exact texts;
// nothing changes before the person confirms.
class DocumentCommands
{
public:
    DocumentCommands(StoreAccess &store, CurrentDocument &current, ListedDocuments &list, DocumentNumbers &numbers,
                     UndoHistory &undo, const Formatters &formatters, Preferences &prefs, Interaction &ui)
        : m_access(store), m_current(current), m_list(list), m_numbers(numbers), m_undo(undo),
          m_formatters(formatters), m_prefs(prefs), m_ui(ui)
    {
    }

    // duplicateInvoice: a copy of the current document, selected and saved;
    // nullptr without a current document. `toTheCent` makes the copy's
    // figures those of the cent-exact calculation, whatever the copied document used.
    Record *duplicateInvoice(bool toTheCent = false);
    // convertQuoteToInvoice: false when refused ("Sorry!") or cancelled.
    bool convertQuoteToInvoice();
    // deleteInvoice: the sent refusal, the delete confirmation, then the
    // "Adjust Counter" question. False when nothing was deleted.
    bool deleteInvoice();
    // "Cancel Invoice…": for a sent or paid invoice, which cannot be
    // deleted, a credit note: the lines negated, numbered as invoices are,
    // titled `locCreditNote` and naming the invoice it cancels. Selected and
    // saved; nullptr when refused or declined.
    Record *cancelInvoice();
    // The current document is marked as sent: its status is not 0 (Created).
    bool isCurrentInvoiceSent() const;

    // The address book, last used first.
    QList<Record *> addressBook() const;
    // An address for `document`: whichever of the block and the parts is
    // given makes the other; the book remembers it (`selectAddress`).
    void useAddress(Record &document, AddressFields fields);
    // Reads every text of `records` at once (for output of whole records).
    void loadFully(const QList<Record *> &records);

    // "Invoice RE-2026-3 for Kunde GmbH, 238,00 €": the document in one line.
    QString describe(const Record &document) const;

private:
    StoreAccess &m_access;
    CurrentDocument &m_current;
    ListedDocuments &m_list;
    DocumentNumbers &m_numbers;
    UndoHistory &m_undo;
    const Formatters &m_formatters;
    Preferences &m_prefs;
    Interaction &m_ui;
};

} // namespace tabo
