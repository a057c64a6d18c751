#include "app/AccountingExport.h"

#include "app/Interaction.h"
#include "app/Workspace.h"
#include "domain/DocumentList.h"
#include "domain/Record.h"
#include "prefs/Locations.h"
#include "prefs/Preferences.h"
#include "store/ObjectDictionary.h"
#include "store/PropertyList.h"
#include "store/Store.h"

#include <QCoreApplication>
#include <QSet>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(AccountingExport)
};
} // namespace

namespace tabo {

namespace {

using P = Preferences;

// The range preferences keep milliseconds: dates are compared at that
// precision, so a range taken from two documents always holds both.
qint64 milliseconds(const Date &date)
{
    return date.toDateTime().toMSecsSinceEpoch();
}

bool matchesKind(const Record &invoice, qint64 exportKind)
{
    if (invoice.integer(Invoice::kind) != 1)
        return false;
    const int status = invoice.integer(Invoice::status);
    switch (exportKind) {
    case 0: return status != 0;
    case 1: return status == 3;
    case 2: return status == 2;
    default: return false; // not a valid setting: selects nothing
    }
}

// The one line that stands for an invoice's items.
QVariantMap summaryLine(const QVariantMap &invoice)
{
    QVariantMap line;
    const auto copy = [&](const QString &from, const QString &to) {
        const auto it = invoice.constFind(from);
        if (it != invoice.constEnd())
            line.insert(to, *it);
    };
    copy(QStringLiteral("amount"), QStringLiteral("amount"));
    copy(QStringLiteral("number"), QStringLiteral("title"));
    // Dictionaries carry dates under prefixed keys, so these stay absent.
    copy(QStringLiteral("paid"), QStringLiteral("paidDate"));
    copy(QStringLiteral("sent"), QStringLiteral("sentDate"));
    copy(QStringLiteral("date"), QStringLiteral("dateDate"));
    bool applied[3] = {false, false, false};
    for (const QVariant &item : invoice.value(QStringLiteral("items")).toList()) {
        const QVariantMap fields = item.toMap();
        for (int t = 0; t < 3; ++t)
            applied[t] = applied[t] || fields.value(QStringLiteral("isTax%1Applied").arg(t + 1)).toBool();
    }
    for (int t = 0; t < 3; ++t)
        line.insert(QStringLiteral("isTax%1Applied").arg(t + 1), applied[t]);
    copy(QStringLiteral("subAmount"), QStringLiteral("subAmount"));
    for (int t = 1; t <= 3; ++t) {
        copy(QStringLiteral("tax%1Amount").arg(t), QStringLiteral("tax%1Amount").arg(t));
        copy(QStringLiteral("tax%1Percent").arg(t), QStringLiteral("tax%1Percent").arg(t));
    }
    return line;
}

} // namespace

void AccountingExport::sendToVorlux(int sendToTag)
{
    m_store.store();
    QList<Record *> invoices;
    for (Record *r : m_list.shown())
        if (r->integer(Invoice::kind) == 1 && !r->isNull(Invoice::date))
            invoices.append(r);
    // The list is newest first: the range covers every invoice shown.
    if (!invoices.isEmpty()) {
        m_prefs.setDate(P::prefsVorluxExportBeginDate, invoices.last()->date(Invoice::date));
        m_prefs.setDate(P::prefsVorluxExportEndDate, invoices.first()->date(Invoice::date));
    }
    doTheFilter();
    m_sendToTag = sendToTag;
}

QString AccountingExport::sheetLabel() const
{
    return m_sendToTag != 0 ? Tr::tr("Send Invoices To quandrella") : Tr::tr("Send Invoices To Vorlux");
}

void AccountingExport::doTheFilter()
{
    Preferences &prefs = m_prefs;
    const Date begin = prefs.date(P::prefsVorluxExportBeginDate);
    const Date end = prefs.date(P::prefsVorluxExportEndDate);
    const qint64 kind = prefs.integer(P::prefsVorluxExportKind);
    m_selection.clear();
    if (begin.isValid() && end.isValid()) {
        const qint64 from = milliseconds(begin);
        const qint64 to = milliseconds(end);
        for (Record *r : m_list.shown()) {
            if (r->isNull(Invoice::date) || !matchesKind(*r, kind))
                continue;
            const qint64 at = milliseconds(r->date(Invoice::date));
            if (at >= from && at <= to)
                m_selection.append(r);
        }
    }
    prefs.setInteger(P::prefsVorluxExportCount, m_selection.size());
}

QVariantList AccountingExport::entries() const
{
    // Only documents still in the list: the selection may be older than the store.
    const QList<Record *> &all = m_list.all();
    const QSet<Record *> live(all.cbegin(), all.cend());
    QList<Record *> selected;
    for (Record *r : m_selection)
        if (live.contains(r))
            selected.append(r);
    if (Store *store = m_store.store())
        store->loadFully(selected);

    const bool summary = m_prefs.integer(P::prefsVorluxExportItemsKind) == 0;
    QVariantList list;
    list.reserve(selected.size());
    for (const Record *r : std::as_const(selected)) {
        QVariantMap entry = ObjectDictionary::toDictionary(*r);
        if (summary)
            entry.insert(QStringLiteral("items"), QVariantList{summaryLine(entry)});
        list.append(entry);
    }
    return list;
}

QString AccountingExport::exportFilePath() const
{
    return Locations::dataFolder()
           + (m_sendToTag == 0 ? QStringLiteral("/quandrellaExport.vortabo") : QStringLiteral("/quandrellaExport.quandrtabo"));
}

bool AccountingExport::closeVorluxSheet(bool open)
{
    const QString path = exportFilePath();
    if (plist::writeFile(path, entries(), plist::Format::Xml)) {
        m_ui.alert(Tr::tr("Error!"), Tr::tr("Could not write Vorlux/quandrella export data."), { Tr::tr("OK") });
        return false;
    }
    if (open && !m_ui.openWithDefaultApplication(path)) {
        m_ui.alert(Tr::tr("Error!"),
            Tr::tr("Vorlux/quandrella export file couldn't be opened. Please ensure that Vorlux "
                   "or quandrella is installed on your Mac and running."),
            { Tr::tr("OK") });
        return false;
    }
    return true;
}

} // namespace tabo
