#pragma once

#include "CommandSupport.h"
#include "gui/widgets/GuiInteraction.h"
#include "gui/main/MainWindow.h"

#include "app/AppController.h"
#include "prefs/Preferences.h"

#include <memory>

namespace tabo::test {

// A controller with real dialogs on a fresh temporary home; the window is
// built by each test when its preferences are set.
struct WindowFixture
{
    TempHome home;
    Preferences prefs{home.configFile()};
    GuiInteraction ui;
    AppController app{prefs, ui};
    std::unique_ptr<MainWindow> window;
};

} // namespace tabo::test
