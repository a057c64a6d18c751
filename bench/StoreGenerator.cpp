#include "StoreGenerator.h"

#include "domain/EntityModel.h"
#include "store/Schema.h"
#include "store/Store.h"

#include <QFileInfo>
#include <QStringList>

#include <sqlite3.h>

#include <random>

namespace tabo::bench {

namespace {

const QString kBigId = QStringLiteral("BENCH-BIG-DOCUMENT");

QString insertSql(const EntityDesc &d)
{
    const QStringList cols = schema::columns(d);
    QStringList quotedCols, marks;
    for (const QString &c : cols) {
        quotedCols << schema::quoted(c);
        marks << QStringLiteral("?");
    }
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
        .arg(schema::quoted(d.name), quotedCols.join(QLatin1Char(',')), marks.join(QLatin1Char(',')));
}

void bindText(sqlite3_stmt *st, int col, const QByteArray &text)
{
    sqlite3_bind_text(st, col, text.constData(), int(text.size()), SQLITE_TRANSIENT);
}

int column(const EntityDesc &d, int attr)
{
    return attr + 1; // parameters are 1-based and follow the attribute order
}

} // namespace

QString generateStore(const QString &path, int documents, int lines, int bigDocumentLines)
{
    if (QFileInfo::exists(path))
        return kBigId;
    {
        Store store(path); // creates the schema
        if (store.open())
            return {};
    }
    sqlite3 *db = nullptr;
    sqlite3_open(path.toUtf8().constData(), &db);
    sqlite3_exec(db, "PRAGMA synchronous=OFF; BEGIN", nullptr, nullptr, nullptr);
    const EntityDesc &inv = entityDesc(EntityId::Invoice);
    const EntityDesc &item = entityDesc(EntityId::Item);
    sqlite3_stmt *si = nullptr, *sl = nullptr;
    sqlite3_prepare_v2(db, insertSql(inv).toUtf8().constData(), -1, &si, nullptr);
    sqlite3_prepare_v2(db, insertSql(item).toUtf8().constData(), -1, &sl, nullptr);

    std::mt19937 rng(42);
    const double now = 817000000.0; // late 2026, seconds since 2001
    const QByteArray conditions = "Payable within 14 days without deduction. Thank you for your business.";
    const QByteArray footer = "Example Studio · Main Street 1 · 12345 Springfield · IBAN DE00 1234 5678 9012 3456 78";
    const char *clients[] = {"Mara Lindqvist", "Orchard Lane Bakery", "Jonas Weber", "Blue Fjord Ltd", "Ana Ruiz"};
    const char *titles[] = {"Website redesign", "Consulting", "Monthly retainer", "Photo session", "Translation"};
    int linesLeft = lines - bigDocumentLines;
    qint64 itemId = 0;
    for (int i = 1; i <= documents; ++i) {
        sqlite3_reset(si);
        sqlite3_clear_bindings(si);
        const bool big = i == documents;
        // A business's history: about one document in seven is a quote; older
        // invoices are nearly all paid, the last two months are still open,
        // a few are overdue or partly paid.
        const int kind = rng() % 7 == 0 ? 0 : 1;
        const double age = double(rng() % (3 * 365 * 86400));
        const double date = now - age;
        int status = 0;
        if (kind == 1) {
            const unsigned dice = rng() % 100;
            if (age > 60 * 86400)
                status = dice < 94 ? 3 : dice < 97 ? 2 : 4;
            else
                status = dice < 20 ? 0 : dice < 75 ? 1 : dice < 95 ? 3 : 2;
        }
        sqlite3_bind_int64(si, column(inv, Invoice::kind), kind);
        sqlite3_bind_int64(si, column(inv, Invoice::status), status);
        sqlite3_bind_double(si, column(inv, Invoice::date), date);
        sqlite3_bind_double(si, column(inv, Invoice::due), date + 14 * 86400);
        sqlite3_bind_double(si, column(inv, Invoice::paid), date);
        sqlite3_bind_double(si, column(inv, Invoice::sent), date);
        sqlite3_bind_double(si, column(inv, Invoice::dispatched), date);
        sqlite3_bind_double(si, column(inv, Invoice::misc5), date);
        const double net = double(rng() % 500000) / 100.0;
        sqlite3_bind_double(si, column(inv, Invoice::subAmount), net);
        sqlite3_bind_double(si, column(inv, Invoice::amount), net * 1.19);
        sqlite3_bind_double(si, column(inv, Invoice::tax1Amount), net * 0.19);
        sqlite3_bind_double(si, column(inv, Invoice::tax1Percent), double(0.19f));
        sqlite3_bind_double(si, column(inv, Invoice::paidAmount), status == 3 ? net * 1.19 : 0.0);
        sqlite3_bind_double(si, column(inv, Invoice::dueAmount), status == 2 ? net * 1.19 : 0.0);
        sqlite3_bind_int64(si, column(inv, Invoice::isPaid), status >= 3 ? 1 : 0);
        for (int a : {Invoice::isDispatched, Invoice::discountKind, Invoice::tax1Kind,
                      Invoice::tax2Kind, Invoice::tax3Kind, Invoice::misc2, Invoice::misc4})
            sqlite3_bind_int64(si, column(inv, a), 0);
        bindText(si, column(inv, Invoice::number), (kind ? "RE-" : "AN-") + QByteArray::number(i));
        bindText(si, column(inv, Invoice::uniqueID), big ? kBigId.toUtf8() : "BENCH-" + QByteArray::number(i));
        const char *client = clients[rng() % 5];
        bindText(si, column(inv, Invoice::customerName), client);
        bindText(si, column(inv, Invoice::title), titles[rng() % 5]);
        bindText(si, column(inv, Invoice::address),
                 QByteArray(client) + "\nMain Street " + QByteArray::number(i % 300) + "\n12345 Springfield");
        bindText(si, column(inv, Invoice::conditions), conditions);
        bindText(si, column(inv, Invoice::footer), footer);
        bindText(si, column(inv, Invoice::currency), "€");
        bindText(si, column(inv, Invoice::subject), "Project " + QByteArray::number(i % 977));
        sqlite3_step(si);

        const int n = big ? bigDocumentLines : std::min(linesLeft, int(rng() % 9) + 1);
        linesLeft -= big ? 0 : n;
        for (int l = 0; l < n; ++l) {
            sqlite3_reset(sl);
            sqlite3_clear_bindings(sl);
            sqlite3_bind_double(sl, column(item, Item::unitCount), double(rng() % 20 + 1));
            sqlite3_bind_double(sl, column(item, Item::baseAmount), double(rng() % 20000) / 100.0);
            sqlite3_bind_int64(sl, column(item, Item::isTax1Applied), 1);
            sqlite3_bind_double(sl, column(item, Item::tax1Percent), double(0.19f));
            bindText(sl, column(item, Item::title), titles[rng() % 5]);
            bindText(sl, column(item, Item::unit), "h");
            bindText(sl, column(item, Item::tax1Title), "VAT");
            bindText(sl, column(item, Item::uniqueID), "L-" + QByteArray::number(++itemId));
            sqlite3_bind_int64(sl, int(item.attributes.size()) + 1, i); // invoice
            sqlite3_step(sl);
        }
    }
    sqlite3_finalize(si);
    sqlite3_finalize(sl);
    sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(db);
    return kBigId;
}

} // namespace tabo::bench
