#pragma once

#include "prefs/Preferences.h"

#include <QString>
#include <QVariant>

namespace tabo {

// What the Preferences window refuses next to a field, for every writer of
// the settings (the window, `tabo-cli prefs set`): counters and day counts
// within bounds, patterns that tell documents apart, rates from 0 to 1000 %,
// regions that exist, an absolute folder for the store.
namespace PrefRules {

inline constexpr qint64 kMaxCounter = 999999999;
inline constexpr qint64 kMaxDays = 3650;
inline constexpr double kMaxRate = 10.0; // 1000 %

// Why `value` (already of the key's type; rates as fractions) cannot be
// stored under `key`; empty when it can.
QString refusal(Preferences::Key key, const QVariant &value);

} // namespace PrefRules

} // namespace tabo
