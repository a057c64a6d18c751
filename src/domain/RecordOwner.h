#pragma once

#include "domain/EntityModel.h"

#include <QList>

namespace tabo {

class Record;

// What records and the domain's rules ask of the place that keeps them. The
// store implements it; the domain never depends on how records are kept.
class RecordOwner
{
public:
    virtual const QList<Record *> &all(EntityId entity) = 0;
    virtual Record *insert(EntityId entity) = 0;
    virtual Record *byId(EntityId entity, qint64 id) = 0;

protected:
    ~RecordOwner() = default;

private:
    // A record's own calls: reading what is not loaded yet, and noting
    // changes for the next save.
    friend class Record;
    virtual void faultText(Record *record) = 0;
    virtual void rememberOriginal(Record *record, int attr) = 0;
    virtual QList<Record *> *loadToMany(const Record *owner, int rel) = 0;
    virtual void noteChanged(Record *record) = 0;
};

} // namespace tabo
