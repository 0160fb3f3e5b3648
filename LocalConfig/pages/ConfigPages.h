#pragma once

class QWidget;

namespace LocalConfig
{

class IConfigPage;

/// Creates the page of a section.
/// \param nIndex   navigation index
/// \param pParent  becomes the page's parent and owner
/// \return null when there is no such page
IConfigPage* CreateConfigPage(int nIndex, QWidget* pParent);

} // namespace LocalConfig
