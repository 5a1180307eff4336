#pragma once

#include "app/pageinterface.h"

namespace ovra {
namespace Mainwindow {

using Page = GlobalElements::Pageinterface::en_pages;

// Where the user came from, as far as the back button needs to know.
struct PageOrigins
{
    Page playOrigin = Page::StartUp;
    Page editorOrigin = Page::StartUp;
    Page selftestOrigin = Page::StartUp;
    Page filterOrigin = Page::StartUp;
    Page hitlistOrigin = Page::StartUp;
    Page deviceDataOrigin = Page::StartUp;
};

// The navigation tables, free of widgets so that they can be read and tested on their own.
namespace PageTables {

// German source text of a page's title, for translation in the main window's context;
// nullptr for the start page and for the pages titled with a program name.
const char *Title(Page page);

// Target of the back button for the page the stack shows (any index, also unknown ones).
Page BackTarget(int shownPage, const PageOrigins &origins);

// Target of the forward button for the page the stack shows.
Page ForwardTarget(int shownPage);

// What a requested page becomes once the start-up is behind the panel: the start-up device
// data is shown once per run; the controller's "oven ready" (26) means the main menu after the
// start-up; during commissioning the main menu waits for the set-up pages, and the
// controller's main menu while the language page is shown ends commissioning in place.
struct Redirect
{
    enum class Action { Show, Ignore, EndCommissioning };
    Action action = Action::Show;
    Page page = Page::StartUp;
};
Redirect ResolveRequest(Page requested, Page current, bool startupShown, bool initialStartup);

// The header's temperature shows on every page but the process page, which shows its own.
bool HeaderShowsTemperature(Page shown);

// Whether `from` is remembered as the origin when `to` is entered.
bool RemembersPlayOrigin(int from);
bool RemembersEditorOrigin(Page to, int from);

} // namespace PageTables
} // namespace Mainwindow
} // namespace ovra
