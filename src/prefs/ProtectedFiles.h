#pragma once

#include "base/Error.h"

#include <QByteArray>
#include <QString>

namespace tabo {

// The files no output may land on: the store and its side files, the settings
// file with its lock and kept copy, and the automatic backups. Every writer of
// a file the person named asks here first, so a save panel or a command-line
// path aimed at one of them (directly, through a link or a "..") is refused in
// words instead of turning the store into a PDF.
namespace ProtectedFiles {

// Stores the process opened or will open; the default store, the settings
// and the automatic backups are known without being named.
void addStore(const QString &storePath);

// Who writes: any output, or the automatic backup's own rotation, the only
// writer allowed onto those files.
enum class Writer { Output, AutomaticBackup };

// An Error naming the file when `target` is one of ours, else none.
Error check(const QString &target, Writer writer = Writer::Output);

// check(), then the bytes written through a temporary file and one rename.
Error writeAtomically(const QString &target, const QByteArray &data, Writer writer = Writer::Output);

} // namespace ProtectedFiles

} // namespace tabo
