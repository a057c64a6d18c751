#pragma once

#include "base/Error.h"

#include <QString>

#include <functional>

namespace tabo {

class Store;

// A working copy of a store file, made beside the store so that putting it in
// place is one rename on the same file system, and the other file steps of a
// restore. The file a restore replaces stays as "<store>.previous" until the
// new one is open, so an interruption leaves the old or the new data.
class StoreFile
{
public:
    // Reserves the working file; path() is empty when none could be made.
    explicit StoreFile(const QString &storePath);
    ~StoreFile(); // removes the working file unless it was put in place
    StoreFile(const StoreFile &) = delete;
    StoreFile &operator=(const StoreFile &) = delete;

    QString path() const { return m_path; }
    Error copyFrom(const QString &source);
    // Refused unless the copy is a complete, undamaged store of ours.
    Error check() const;
    // Puts the checked copy in place of the store. The callbacks close and
    // open the store the application uses; on failure the previous store is
    // open again.
    Error swapIn(const std::function<void()> &closeStore, const std::function<bool()> &reopenStore);

    // Finishes or undoes a restore that was interrupted (a crash, a kill)
    // before the store at `storePath` is opened: the restored file stays when
    // it opens, otherwise the previous one comes back.
    static void recoverInterruptedRestore(const QString &storePath);
    // Writes a consistent single-file copy of the open store to `target`
    // (a file beside it, synced, then renamed: `target` is the old file or
    // the complete copy, whenever the process dies).
    static Error writeCopy(Store &store, const QString &target);
    // Removes the unfinished copies of a process that died while writing them.
    static void removeInterruptedCopies();

    // A move of the store to another folder is noted before the preferences
    // may name the target and forgotten once the copy is there: a move a kill
    // cut short is finished at the next start instead of a new, empty store
    // being opened where the documents should be.
    static void beginMove(const QString &source, const QString &target);
    static void endMove();
    static void finishInterruptedMove(const QString &storePath);

    // Test hook: with TABO_TEST_RESTORE_PAUSE_MS set, a restore waits that long
    // between its file steps, so that a test can kill it in every window.
    static void pauseForTest();

private:
    QString m_storePath;
    QString m_path;
    bool m_kept = false;
};

} // namespace tabo
