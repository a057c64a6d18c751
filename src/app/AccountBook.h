#pragma once

#include <QList>
#include <QString>

namespace tabo {

class Interaction;
class ListedDocuments;
class OutputCommands;
class Preferences;
class Record;
struct PrinterItem;

// The printed account book: the invoices the main list shows, by date, one
// block of three table lines each under the company's name and the column
// headings, with "page / pages" at every foot.
class AccountBook
{
public:
    AccountBook(ListedDocuments &list, OutputCommands &outputs, Preferences &prefs, Interaction &ui)
        : m_list(list), m_outputs(outputs), m_prefs(prefs), m_ui(ui)
    {
    }

    // The blocks of the book for `documents` (only invoices are listed).
    QList<PrinterItem> items(const QList<Record *> &documents) const;
    // The book of what the list shows, written as PDF at `path`; `forPrint`
    // places each page within the printout's margins, centred.
    bool writePdf(const QString &path, bool forPrint = false);
    // printAccountBook:: the one-time hint, then the book to the printer.
    bool print();

    // A text cut to `length` characters, with " &hellip;" after a cut.
    static QString cut(const QString &text, int length);
    // The client line: the address on one line (" &middot; " between its
    // lines) and the client number.
    static QString clientLine(const QString &address, const QString &clientNumber);

private:
    ListedDocuments &m_list;
    OutputCommands &m_outputs;
    Preferences &m_prefs;
    Interaction &m_ui;
};

} // namespace tabo
