#pragma once

#include <QString>

namespace tabo {
class Record;
struct Summary;
} // namespace tabo

namespace tabo::cli {

// Records as JSON text, written by hand so that every double keeps its exact
// value (the shortest text that reads back to the same bits).
class JsonWriter
{
public:
    // Shortest round-trip text; "NaN", "Infinity", "-Infinity" when not finite.
    static QString numberText(double v);
    // As JSON: the non-finite values become strings.
    static QString number(double v);
    static QString number(float v);
    static QString string(const QString &s);

    // One attribute's value: null when empty, dates in ISO 8601 UTC.
    static QString attribute(const Record &record, int attr);
    // Every attribute under its key name.
    static QString record(const Record &record);
    // A document with its lines under "items".
    static QString document(const Record &document);
    static QString summary(const Summary &summary);
};

} // namespace tabo::cli
