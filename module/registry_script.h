// Registry scripts: the keys and values that registration writes, in the
// registrar's script format.
//
//   HKCR
//   {
//       NoRemove CLSID
//       {
//           ForceRemove {...} = s 'Name'
//           {
//               InprocServer32 = s '%MODULE%'
//               {
//                   val ThreadingModel = s 'both'
//               }
//           }
//       }
//   }
//
// A key is an optional flag, a name (bare or in single quotes, '' standing
// for one quote), an optional "= s 'default value'" and an optional block of
// subkeys and "val Name = s 'value'" lines. %NAME% inside a name or a value
// is replaced by the value given for NAME ("%%" is one "%"). Only string
// values and the root HKCR exist in the scripts this module carries, so only
// they are accepted.
#pragma once

#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/wide.h"

namespace registry {

struct value {
    wstring name;   // empty: the key's default value
    wstring data;
};

enum class flag { none, no_remove, force_remove };

// One key, with its full path below HKEY_CLASSES_ROOT.
struct key {
    wstring path;
    flag removal = flag::none;
    std::vector<value> values;   // the default value first, when there is one
    std::size_t line = 0;
};

struct replacement {
    std::string_view name;   // without the percent signs
    wstring_view text;
};

// The keys in script order: every key after the key it lies in.
using script = std::vector<key>;

// A script that does not parse: the message names the line.
class script_error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

script parse_script(wstring_view text, std::span<const replacement> replacements);

}   // namespace registry
