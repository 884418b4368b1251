// ViewBridge: how the API reaches the viewport that is drawing, without knowing it.
#include "viewBridge.h"

#include <utility>

namespace tvxhost::api {

namespace {

ViewBridge*& current()
{
    static ViewBridge* view = nullptr;
    return view;
}

} // namespace

ViewBridge::~ViewBridge() = default;

bool ViewBridge::lookThrough(const engine::DagPath&)
{
    return false;
}

bool ViewBridge::redraw()
{
    return false;
}

ViewBridge* currentView()
{
    return current();
}

CurrentView::CurrentView(ViewBridge& view) : m_before(std::exchange(current(), &view)) {}

CurrentView::~CurrentView()
{
    current() = m_before;
}

} // namespace tvxhost::api
