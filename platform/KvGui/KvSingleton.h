#pragma once

namespace KVGUI
{

/// Access to the one object of a class that the library owns: the class declares this a friend or has a public
/// default constructor, and specialises Instance in its own source file so that all libraries share one object.
template <class T>
class KvSingleton
{
public:
    static T* Instance(); ///< never null
};

} // namespace KVGUI
