#pragma once

// Shared by the store's source files only: the records of one entity as the
// store keeps them, and two readers of SQLite results.

#include "domain/Record.h"
#include "store/Store.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <sqlite3.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace tabo {

struct Store::EntityState
{
    QHash<qint64, Record *> map; // every known record, deleted ones until save
    QList<Record *> live;        // valid once `loaded`
    bool loaded = false;
    qint64 maxId = -1;           // -1 until read from the table
    QStringList fullColumns;
    QString fullSelect;          // "SELECT id, ... FROM T"
    QList<int> listAttrs;        // attributes read at open (Invoice)
    QString listSelect;
    std::vector<std::unique_ptr<std::byte[]>> arenas; // records laid out in list order

    void destroyAll()
    {
        for (Record *r : std::as_const(map)) {
            if (r->isInline())
                r->~Record();
            else
                delete r;
        }
        map.clear();
        live.clear();
        arenas.clear();
        loaded = false;
        maxId = -1;
    }
};

namespace storedetail {

// The first column of the first row of a one-value query ("PRAGMA x").
QByteArray firstText(sqlite3 *db, const char *sql);
// A text column; "" and no value differ.
QString textFromColumn(sqlite3_stmt *stmt, int col);

} // namespace storedetail

} // namespace tabo
