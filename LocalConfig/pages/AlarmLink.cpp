#include "AlarmLink.h"

#include <QFileInfo>
#include <QString>

#include <cstdlib>
#include <cstring>

#include <pugixml.hpp>

namespace LocalConfig
{

namespace
{

constexpr long g_nNothingForced = -1;

std::optional<bool> FindForcedAlarmSound(const pugi::xml_document& document)
{
    const pugi::xml_node root = document.child("AlarmLink");
    for (pugi::xml_node child = root.first_child(); child; child = child.next_sibling())
    {
        if (std::strcmp(child.name(), "EnableAlarmSound") == 0)
        {
            const long nValue = std::strtol(child.child_value(), nullptr, 10);
            return nValue == g_nNothingForced ? std::nullopt : std::make_optional(nValue != 0);
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<bool> ReadForcedAlarmSound(const QString& strFile)
{
    pugi::xml_document document;
    const bool bLoaded = QFileInfo(strFile).isFile() && document.load_file(strFile.toStdWString().c_str());
    return bLoaded ? FindForcedAlarmSound(document) : std::nullopt;
}

std::optional<bool> ParseForcedAlarmSound(const QByteArray& content)
{
    pugi::xml_document document;
    const bool bLoaded = document.load_buffer(content.constData(), std::size_t(content.size()));
    return bLoaded ? FindForcedAlarmSound(document) : std::nullopt;
}

} // namespace LocalConfig
