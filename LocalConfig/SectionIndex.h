#pragma once

namespace LocalConfig
{

/// Navigation index of a section: its place in the navigation list and in the scroll area. Not the code by which the
/// host knows it.
enum ESectionIndex : int
{
#define SECTION(name, ...) Index##name,
#include "SectionList.h"
    SectionCount
};

} // namespace LocalConfig
