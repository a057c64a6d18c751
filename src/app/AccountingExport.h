#pragma once

#include <QList>
#include <QString>
#include <QVariantList>

namespace tabo {

class DocumentList;
class Interaction;
class Preferences;
class StoreAccess;
class Record;

// Invoice data for the two accounting programs: the sheet's selection by date
// range and state, and the exchange file in the "Tabo" folder.
class AccountingExport
{
public:
    AccountingExport(StoreAccess &store, const DocumentList &list, Preferences &prefs, Interaction &ui)
        : m_store(store)
        , m_list(list)
        , m_prefs(prefs)
        , m_ui(ui)
    {
    }

    // sendToVorlux: takes the list's invoices, sets the range preferences to
    // cover them, selects. `sendToTag` 0 Vorlux, other quandrella.
    void sendToVorlux(int sendToTag);
    // doTheFilter: the selection by the range and kind preferences.
    void doTheFilter();
    const QList<Record *> &vorluxArray() const { return m_selection; }
    int sendToTag() const { return m_sendToTag; }
    // "Send Invoices To Vorlux" / "Send Invoices To quandrella"
    QString sheetLabel() const;

    // The exchange file's entries (object dictionaries, with the summary line
    // when `prefsVorluxExportItemsKind` is 0).
    QVariantList entries() const;
    // The file in the "Tabo" folder for the current tag.
    QString exportFilePath() const;
    // closeVorluxSheet: writes (or shows "Could not write Vorlux/quandrella
    // export data.") and opens it (or shows the "couldn't be opened" text)
    // when `open` is true. False on a failure.
    bool closeVorluxSheet(bool open = true);

private:
    StoreAccess &m_store;
    const DocumentList &m_list;
    Preferences &m_prefs;
    Interaction &m_ui;
    QList<Record *> m_selection;
    int m_sendToTag = 0;
};

} // namespace tabo
