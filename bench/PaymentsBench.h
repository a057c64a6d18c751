#pragma once

namespace tabo::bench {

// Matching a statement of 10,000 credits against 100,000 documents; prints
// a table.
int runPaymentsBench();

} // namespace tabo::bench
