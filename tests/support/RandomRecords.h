#pragma once

#include "Chance.h"

#include <client/store/RecordFields.h>

#include <limits>
#include <map>
#include <string>
#include <type_traits>

/// Records with any value that each field can hold, the odd ones more often than chance would have them.
class CRandomRecords
{
public:
    explicit CRandomRecords(CChance& chance)
        : m_chance(chance)
    {}

    template <class Record>
    Record Make()
    {
        Record record;
        Fill(record);
        return record;
    }

private:
    template <class Value>
    void Fill(Value& value)
    {
        if constexpr (std::is_same_v<Value, bool>)
        {
            value = m_chance.OneIn(2);
        }
        else if constexpr (std::is_integral_v<Value>)
        {
            value = static_cast<Value>(Number());
        }
        else
        {
            LocalConfigClient::VisitFields(value, [this](const char* /*pszName*/, auto& field) { this->Fill(field); });
        }
    }

    void Fill(std::string& bytes)
    {
        static const std::string arrPieces[] = {"/",
                                                "\\",
                                                "C:\\",
                                                "./Sound/",
                                                "a",
                                                "0123456789",
                                                " ",
                                                "\n",
                                                "\t",
                                                "%1",
                                                "&",
                                                "<b>",
                                                std::string(1, '\0'),
                                                "\x01",
                                                "\xc3\xa9",
                                                "\xe5\x9b\xbe",
                                                "\xf0\x9f\x93\xb7",
                                                "\xe2\x80\xae",     // turns the direction of writing
                                                "\xef\xbf\xbf",     // no character
                                                "\xed\xa0\x80",     // half of a pair
                                                "\xf4\x90\x80\x80", // past the last character
                                                "\xc0\xaf",         // longer than need be
                                                "\xff",
                                                "\xe5\x9b"};
        bytes.clear();
        for (int nPieces = m_chance.OneIn(4) ? 0 : m_chance.Below(12); nPieces > 0; --nPieces)
        {
            const std::string& piece = m_chance.OneOf(arrPieces);
            for (int n = m_chance.OneIn(8) ? m_chance.Below(200) : 1; n > 0; --n)
            {
                bytes += piece;
            }
        }
        if (m_chance.OneIn(50))
        {
            bytes.append(1000000, m_chance.OneIn(2) ? 'x' : '\x9b');
        }
    }

    template <class Mapped>
    void Fill(std::map<std::int32_t, Mapped>& map)
    {
        map.clear();
        for (int n = m_chance.OneIn(20) ? 1000 : m_chance.Below(20); n > 0; --n)
        {
            Fill(map[Number()]);
        }
    }

    std::int32_t Number()
    {
        // Ends of ranges, values of lists and keys of the alarm catalogue, with their neighbours.
        static constexpr std::int32_t arrNotable[] = {0,   1,   2,   5,    10,   15,   20,   36,   64,    80,
                                                      104, 128, 301, 600,  967,  1440, 1500, 3101, 3130,  17020,
                                                      901, 961, 200, 9999, 1001, 255,  -2,   7,    65535, 86400};
        switch (m_chance.Below(4))
        {
        case 0:
            return static_cast<std::int32_t>(m_chance.Bits());
        case 1:
            return m_chance.OneIn(2) ? std::numeric_limits<std::int32_t>::max() - m_chance.Below(2)
                                     : std::numeric_limits<std::int32_t>::min() + m_chance.Below(2);
        default:
            return m_chance.OneOf(arrNotable) + m_chance.Below(3) - 1;
        }
    }

    CChance& m_chance;
};
