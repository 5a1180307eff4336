#include "app/pagetables.h"

#include <QtGlobal>

#include <array>

namespace ovra {
namespace Mainwindow {
namespace PageTables {

namespace {

constexpr std::array<const char *, 27> titles = {
    nullptr,                                                                // 0 StartUp
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Gerätedaten"),       // 1
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Systemtest"),        // 2
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Hauptmenü"),         // 3
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Favoriten"),         // 4
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Programmoptionen"),  // 5
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Einstellungen"),     // 6
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Service"),           // 7
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Service"),           // 8
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Programme"),         // 9
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Meine Programme"),   // 10
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Feste Programme"),   // 11
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Sprache"),           // 12
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Temperatureinheit"), // 13
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Datum & Uhrzeit"),   // 14
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Gerätedaten"),       // 15
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Neues Programm"),    // 16
    nullptr,                                                                // 17 program name
    nullptr,                                                                // 18 program name
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Service Programme"), // 19
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Fehler"),            // 20
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Filteroptionen"),    // 21
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Filteroptionen"),    // 22
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Filteroptionen"),    // 23
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "USB Stick erkannt"), // 24
    nullptr,                                                                // 25 program name
    QT_TRANSLATE_NOOP("ovra::MainWindow::MainWindow", "Hauptmenü"),         // 26
};

// Forward, indexed by the shown page minus 12 (pages 12..23); everything else goes home.
constexpr std::array<Page, 12> forward = {
    Page::UnitSelect,      // 12 language      -> unit
    Page::DateTime,        // 13 unit          -> date and time
    Page::DeviceData2,     // 14 date and time -> device data
    Page::Settings,        // 15 device data   -> settings (end of commissioning)
    Page::Progs,           // 16 editor
    Page::MainMenu,        // 17
    Page::MainMenu,        // 18
    Page::MainMenu,        // 19
    Page::MainMenu,        // 20
    Page::MainMenu,        // 21
    Page::DisplayMaterial, // 22 manufacturer filter -> material filter
    Page::Progs,           // 23 material filter     -> program options
};

bool isOneOf(int page, std::initializer_list<Page> pages)
{
    for (Page p : pages) {
        if (page == static_cast<int>(p))
            return true;
    }
    return false;
}

} // namespace

const char *Title(Page page)
{
    const auto index = static_cast<std::size_t>(page);
    return index < titles.size() ? titles[index] : nullptr;
}

Page BackTarget(int shownPage, const PageOrigins &o)
{
    switch (shownPage) {
    case Page::Selftest:
    case Page::FailureList: return Page::Service;
    case Page::MyHitlist: return o.hitlistOrigin == Page::Lists ? Page::Lists : Page::MainMenu;
    case Page::Lists:
    case Page::ServiceProgs: return Page::Progs;
    case Page::MyProgs:
    case Page::FixProgs: return Page::Lists;
    case Page::LangSelect: return Page::Settings;
    // The commissioning order holds even when these pages were opened from the settings.
    case Page::UnitSelect: return Page::LangSelect;
    case Page::DateTime: return Page::UnitSelect;
    case Page::DeviceData2: return o.deviceDataOrigin == Page::Service ? Page::Service : Page::DateTime;
    case Page::NewProg:
        return isOneOf(o.editorOrigin, {Page::MyProgs, Page::PlayProg, Page::ProcessProg}) ? o.editorOrigin
                                                                                           : Page::Progs;
    case Page::PlayProg:
        if (isOneOf(o.playOrigin, {Page::MyHitlist, Page::FixProgs, Page::ServiceProgs}))
            return o.playOrigin;
        if (isOneOf(o.playOrigin, {Page::MyProgs, Page::NewProg}))
            return Page::MyProgs;
        return Page::MainMenu;
    case Page::ProcessProg: return Page::PlayProg;
    case Page::DisplayOptions:
        return isOneOf(o.filterOrigin, {Page::Settings, Page::Progs}) ? o.filterOrigin : Page::MainMenu;
    case Page::DisplayManufacturer: return Page::DisplayOptions;
    case Page::DisplayMaterial: return Page::DisplayManufacturer;
    default: // 0, 1, 3, 5, 6, 7, 8, 24 and above
        return Page::MainMenu;
    }
}

Page ForwardTarget(int shownPage)
{
    const int index = shownPage - static_cast<int>(Page::LangSelect);
    if (index < 0 || index >= static_cast<int>(forward.size()))
        return Page::MainMenu;
    return forward[static_cast<std::size_t>(index)];
}

Redirect ResolveRequest(Page requested, Page current, bool startupShown, bool initialStartup)
{
    Redirect result;
    result.page = requested;
    if (startupShown) {
        if (requested == Page::DeviceData) {
            result.action = Redirect::Action::Ignore;
            return result;
        }
        if (requested == Page::OvenReady && !initialStartup)
            result.page = Page::MainMenu;
    }
    if (initialStartup && (requested == Page::MainMenu || (requested == Page::OvenReady && startupShown))) {
        if (current == Page::LangSelect) {
            result.action = Redirect::Action::EndCommissioning;
            return result;
        }
        result.page = Page::MainMenu;
    }
    return result;
}

bool HeaderShowsTemperature(Page shown)
{
    return shown != Page::ProcessProg;
}

bool RemembersPlayOrigin(int from)
{
    return isOneOf(from, {Page::MyHitlist, Page::MyProgs, Page::FixProgs, Page::NewProg, Page::ServiceProgs});
}

bool RemembersEditorOrigin(Page to, int from)
{
    if (to == Page::NewProg)
        return isOneOf(from, {Page::Progs, Page::MyProgs});
    if (to == Page::ChangeProg)
        return isOneOf(from, {Page::Progs, Page::MyProgs, Page::PlayProg, Page::ProcessProg});
    return false;
}

} // namespace PageTables
} // namespace Mainwindow
} // namespace ovra
