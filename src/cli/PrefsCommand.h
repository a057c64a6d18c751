#pragma once

#include "cli/Command.h"
#include "prefs/Preferences.h"

namespace tabo::cli {

// prefs get KEY | prefs set KEY VALUE | prefs install-language N
class PrefsCommand : public Command
{
public:
    explicit PrefsCommand(Session &session);
    int execute(const QStringList &args) override;

private:
    int list(bool json);
    int get(const QString &key);
    int set(const QString &key, const QString &value);
    int installLanguage(const QString &number);
    int moveStore(Preferences::Key key, const QString &value);
};

} // namespace tabo::cli
