#pragma once

#include <QSet>

namespace LocalConfigClient
{

/// The rights that a user lacks.
struct MissingRights
{
    QSet<int> setRights;
    bool bAll = false; ///< for a user of whom it is not known which rights are missing

    bool Contains(int nRight) const { return bAll || setRights.contains(nRight); }
};

} // namespace LocalConfigClient
