// The module's registration as an installer package's registry rows: the
// keys that registration writes, turned into the values a Windows Installer
// package writes under HKEY_CLASSES_ROOT and takes away again at removal.
//
// A package owns values, not keys: it creates the keys above a value as it
// writes it, and removes a key once removal has left it empty. The registry
// script flags map onto that as follows:
//   NoRemove keys without values    no row: they are created with what lies in
//                                   them and, holding foreign keys, never emptied
//   ForceRemove keys                their values; removal takes what the
//                                   package wrote and keeps anything foreign
//   every other key                 its values
// What has no such row (a key of neither kind without values, a value that
// is empty or kept at removal) is refused, so that a package never registers
// less than the module does.
#pragma once

#include <string>
#include <vector>

#include "module/registry_script.h"

namespace registry {

// Stands for the module's file path while the scripts are parsed for a
// package: a private-use character that no script holds.
inline constexpr wchar module_path_marker = 0xE000;

struct installer_row {
    wstring key;   // below HKEY_CLASSES_ROOT, as the installer's formatted text
    wstring name;   // empty: the key's default value
    wstring data;   // as the installer's formatted text
};

// The rows for these keys, the module path standing as [#file_id]: the full
// path of the package's file with that identifier. Throws script_error for a
// key that has no row.
std::vector<installer_row> installer_rows(const script& keys, wstring_view file_id);

// The rows as a WiX include file of RegistryValue elements, UTF-8.
std::string wix_include(const std::vector<installer_row>& rows, std::string_view source);

}   // namespace registry
