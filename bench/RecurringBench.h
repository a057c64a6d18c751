#pragma once

namespace tabo::bench {

// 1,000 repeated invoices due at once, written into a store of 10,000
// documents; prints a table.
int runRecurringBench();

} // namespace tabo::bench
