#pragma once

#include "domain/EntityModel.h"
#include "prefs/Preferences.h"

// Tabo keeps up to three taxes. Everything that names "tax k" (a setting,
// a line's share, a document's sum, the shipping's switch) goes through
// these tables by the index k = 0, 1, 2, so that no file keeps its own copy.
namespace tabo::taxes {

inline constexpr Preferences::Key kTaxTitle[3] = {Preferences::tax1Title, Preferences::tax2Title, Preferences::tax3Title};
inline constexpr Preferences::Key kTaxRate[3] = {Preferences::tax1Rate, Preferences::tax2Rate, Preferences::tax3Rate};
inline constexpr Preferences::Key kTaxEnabled[3] = {Preferences::tax1Enabled, Preferences::tax2Enabled,
                                                   Preferences::tax3Enabled};
inline constexpr Preferences::Key kTaxCategory[3] = {Preferences::tax1Category, Preferences::tax2Category,
                                                    Preferences::tax3Category};
inline constexpr Preferences::Key kTaxReason[3] = {Preferences::tax1ExemptionReason, Preferences::tax2ExemptionReason,
                                                  Preferences::tax3ExemptionReason};

inline constexpr int kItemApplied[3] = {Item::isTax1Applied, Item::isTax2Applied, Item::isTax3Applied};
inline constexpr int kItemTitle[3] = {Item::tax1Title, Item::tax2Title, Item::tax3Title};
inline constexpr int kItemPercent[3] = {Item::tax1Percent, Item::tax2Percent, Item::tax3Percent};
inline constexpr int kItemTaxAmount[3] = {Item::tax1Amount, Item::tax2Amount, Item::tax3Amount};

inline constexpr int kDocPercent[3] = {Invoice::tax1Percent, Invoice::tax2Percent, Invoice::tax3Percent};
inline constexpr int kDocTaxAmount[3] = {Invoice::tax1Amount, Invoice::tax2Amount, Invoice::tax3Amount};
inline constexpr int kShippingTax[3] = {Invoice::isShippingTax1Enabled, Invoice::isShippingTax2Enabled,
                                        Invoice::isShippingTax3Enabled};

inline constexpr int kRecentApplied[3] = {RecentItem::isTax1Applied, RecentItem::isTax2Applied,
                                          RecentItem::isTax3Applied};
inline constexpr int kRecentShippingTax[3] = {RecentShipping::isTax1Enabled, RecentShipping::isTax2Enabled,
                                              RecentShipping::isTax3Enabled};

} // namespace tabo::taxes
