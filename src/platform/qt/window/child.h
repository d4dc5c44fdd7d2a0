#pragma once

#include <utility>

namespace mirtane {

// A new object that belongs to its parent, as the toolkit keeps widgets: the parent deletes it. All widgets
// of the window are made here.
template <class Object, class Parent, class... Arguments>
Object& childOf(Parent& parent, Arguments&&... arguments)
{
    return *new Object(std::forward<Arguments>(arguments)..., &parent);
}

} // namespace mirtane
