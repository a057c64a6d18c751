#pragma once

#include <QList>
#include <QVariantMap>

#include <memory>

namespace tabo {

class Preferences;
class Record;

// The made-up document of the design preview: a standalone invoice (never
// stored) with the sample client, numbers and lines, totalled like a real one.
// Taxes are 10, 5 and 1 percent, each only when enabled in the preferences;
// line tax titles fall back to "Federal Tax", "State Tax" and "Third Tax".
class SampleDocument
{
public:
    explicit SampleDocument(const Preferences &prefs);
    ~SampleDocument();

    // `previewItems`: the sample lines, as item dictionaries (the
    // "PreviewItems" resource's "array").
    static QList<QVariantMap> previewItems();

    const Record &invoice() const { return *m_invoice; }
    const QList<Record *> &items() const { return m_items; }

private:
    std::unique_ptr<Record> m_invoice;
    QList<Record *> m_items; // owned
};

} // namespace tabo
