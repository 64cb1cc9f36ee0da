#pragma once

// Sets CurrentLocation to the place that the sibling calendar keeps as its default ("almanac13.ini", section
// "Preferences", key "DefaultLocation"), else Aachen; a name that no built-in or user place has, to the first built-in
// place.
void LoadDefaultLocation();
