// korps-registry-rows: the registry rows of a korps.dll for an installer
// package, made at build time from the registration the module itself
// carries, so that a package and DllRegisterServer write the same keys.
//
//   korps-registry-rows KORPS.DLL FILE-ID OUTPUT.wxi
//
// The scripts come from KORPS.DLL's REGISTRY resources, read with the
// module's own registry-script parser; the proxy/stub's rows from the proxy
// tables compiled into this program from the same interface definitions.
// The module's path stands as [#FILE-ID], the path the package installs it to.
#include <cstdio>
#include <string>

#include <windows.h>

#include "core/errors.h"
#include "module/installer_rows.h"
#include "module/korps_module.h"

namespace {

int fail(const std::string& what)
{
    std::fprintf(stderr, "korps-registry-rows: %s\n", what.c_str());
    return 1;
}

}   // namespace

int main(int argc, char** argv)
{
    if (argc != 4)
        return fail("usage: korps-registry-rows KORPS.DLL FILE-ID OUTPUT.wxi");
    const std::string dll = argv[1], file_id = argv[2], output = argv[3];
    const HMODULE module =
        LoadLibraryExA(dll.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
    if (!module)
        return fail("cannot read " + dll + " (error " + std::to_string(GetLastError()) + ")");
    std::string text;
    try {
        const registry::script keys = CKORPSModule::RegistryKeys(module, std::wstring(1, registry::module_path_marker));
        const std::wstring id(file_id.begin(), file_id.end());
        text = registry::wix_include(registry::installer_rows(keys, id), "the registration of korps.dll");
    } catch (const registry::script_error& e) {
        return fail(dll + ": " + e.what());
    } catch (const com::error& e) {
        char code[16];
        std::snprintf(code, sizeof code, "0x%08lX", static_cast<unsigned long>(e.code()));
        return fail(dll + ": its registry scripts cannot be read (" + code + ")");
    }
    std::FILE* out = std::fopen(output.c_str(), "wb");
    if (!out || std::fwrite(text.data(), 1, text.size(), out) != text.size() || std::fclose(out) != 0)
        return fail("cannot write " + output);
    return 0;
}
