#pragma once

/// Makes room for more elements by a quarter of those that are there. A list doubles its room by itself, of
/// which a recording would leave up to half unused for hours.
template <typename List>
void growGently(List &list)
{
    constexpr int LeastRoom = 64;
    if (list.size() == list.capacity())
        list.reserve(list.size() + list.size() / 4 + LeastRoom);
}
