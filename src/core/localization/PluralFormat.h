#pragma once

#include <functional>
#include <map>
#include <string>

#include "core/text/PluralCategory.h"

namespace tactora {

// One entry of a .stringsdict file: a format whose "%#@name@" variables stand for texts chosen
// by the plural category of the argument they take. Pure value; any thread.
//
//     <key>gesture.tap</key>
//     <dict>
//         <key>NSStringLocalizedFormatKey</key><string>%#@fingers@</string>
//         <key>fingers</key>
//         <dict>
//             <key>NSStringFormatSpecTypeKey</key><string>NSStringPluralRuleType</string>
//             <key>NSStringFormatValueTypeKey</key><string>lld</string>
//             <key>one</key><string>Toque com %lld dedo</string>
//             <key>other</key><string>Toque com %lld dedos</string>
//         </dict>
//     </dict>
struct PluralFormat {
    struct Variable {
        std::string valueType;  // NSStringFormatValueTypeKey: "lld", "d"...
        std::map<PluralCategory, std::string> forms;

        bool operator==(const Variable&) const = default;
    };

    std::string format;  // NSStringLocalizedFormatKey
    std::map<std::string, Variable, std::less<>> variables;

    bool operator==(const PluralFormat&) const = default;
};

}  // namespace tactora
