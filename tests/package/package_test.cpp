// The installer package of this build's width, run through the platform's
// own installer in the test prefix, the way an administrator runs it:
// installed silently, compared with what regsvr32 writes, used, repaired,
// upgraded and removed. The packages come from scripts/package.
//
// Each test starts and ends with nothing of ours installed.
#include <gtest/gtest.h>

#include <algorithm>
#include <cwctype>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include <windows.h>

#include <msi.h>
#include <msiquery.h>
#include <shlobj.h>

#include "korps_version.h"
#include "tests/wine/parse_through_platform.h"
#include "tests/wine/registry_text.h"

namespace {

#ifdef _WIN64
constexpr const char* arch = "x64";
#else
constexpr const char* arch = "x86";
#endif
constexpr bool carries_both_modules = sizeof(void*) == 8;

std::wstring widen(std::string_view text)
{
    return {text.begin(), text.end()};
}

std::wstring lower(std::wstring text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](wchar_t c) { return std::towlower(c); });
    return text;
}

bool file_exists(const std::wstring& path)
{
    return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::string file_bytes(const std::wstring& path)
{
    std::ifstream in(path.c_str(), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

// The folder of this test program: the build folder, with the build's korps.dll.
std::wstring build_folder()
{
    wchar_t path[MAX_PATH];
    const DWORD n = GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring folder(path, n);
    return folder.substr(0, folder.find_last_of(L'\\'));
}

// Where the packages put the module: the package's own width in the program
// files folder of that width (FOLDERID_ProgramFiles); the 64-bit package's
// 32-bit module in the 32-bit one (FOLDERID_ProgramFilesX86).
std::wstring installed_folder(REFKNOWNFOLDERID program_files = FOLDERID_ProgramFiles)
{
    wchar_t* path = nullptr;
    std::wstring folder;
    if (SUCCEEDED(SHGetKnownFolderPath(program_files, 0, nullptr, &path)))
        folder = path + std::wstring(L"\\Corvane\\KORPS");
    CoTaskMemFree(path);
    return folder;
}

// Runs a program and waits for it; its exit code. A program named without a
// folder is the system folder's: that of this program's width.
DWORD run(std::wstring command_line)
{
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process)) {
        ADD_FAILURE() << "cannot start " << testing::PrintToString(command_line) << ": error " << GetLastError();
        return ~DWORD{0};
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

std::wstring quoted(const std::wstring& text)
{
    return L"\"" + text + L"\"";
}

// msiexec with the given arguments, silent, with a verbose log that is kept
// (and named in the failure) when the installer does not answer 0.
DWORD msiexec(const std::wstring& arguments, const char* what)
{
    const std::wstring log = build_folder() + L"\\package-" + widen(what) + L".log";
    const DWORD code = run(L"msiexec.exe " + arguments + L" /qn /l*v " + quoted(log));
    if (code == 0)
        DeleteFileW(log.c_str());
    else
        ADD_FAILURE() << "msiexec (" << what << ") answered " << code << "; its log: " << testing::PrintToString(log);
    return code;
}

DWORD regsvr32(const std::wstring& arguments)
{
    return run(L"regsvr32.exe /s " + arguments);
}

// ---- the package's own database -------------------------------------------

struct msi_handle {
    MSIHANDLE handle = 0;
    ~msi_handle() { MsiCloseHandle(handle); }   // a handle of 0 is no handle: nothing happens
    MSIHANDLE* put() { return &handle; }
    operator MSIHANDLE() const { return handle; }
};

std::wstring package_property(const std::wstring& package, const std::wstring& name)
{
    msi_handle database, view, record;
    if (MsiOpenDatabaseW(package.c_str(), MSIDBOPEN_READONLY, database.put()) != ERROR_SUCCESS)
        return L"";
    const std::wstring query = L"SELECT `Value` FROM `Property` WHERE `Property` = '" + name + L"'";
    if (MsiDatabaseOpenViewW(database, query.c_str(), view.put()) != ERROR_SUCCESS ||
        MsiViewExecute(view, 0) != ERROR_SUCCESS || MsiViewFetch(view, record.put()) != ERROR_SUCCESS)
        return L"";
    wchar_t value[256];
    DWORD size = 256;
    MsiRecordGetStringW(record, 1, value, &size);
    return value;
}

std::wstring new_guid()
{
    GUID guid;
    CoCreateGuid(&guid);
    wchar_t text[39];
    StringFromGUID2(guid, text, 39);
    return text;
}

// A copy of the package as an older version of it: the same content under a
// lower product version, with product and package codes of its own.
bool make_older_copy(const std::wstring& package, const std::wstring& copy, const std::wstring& version)
{
    if (!CopyFileW(package.c_str(), copy.c_str(), FALSE))
        return false;
    msi_handle database, summary;
    if (MsiOpenDatabaseW(copy.c_str(), MSIDBOPEN_TRANSACT, database.put()) != ERROR_SUCCESS)
        return false;
    for (const auto& [name, value] : {std::pair{L"ProductVersion", version}, std::pair{L"ProductCode", new_guid()}}) {
        msi_handle view;
        const std::wstring update =
            L"UPDATE `Property` SET `Value` = '" + value + L"' WHERE `Property` = '" + name + L"'";
        if (MsiDatabaseOpenViewW(database, update.c_str(), view.put()) != ERROR_SUCCESS ||
            MsiViewExecute(view, 0) != ERROR_SUCCESS)
            return false;
    }
    constexpr UINT package_code = 9;   // PID_REVNUMBER
    return MsiGetSummaryInformationW(database, nullptr, 1, summary.put()) == ERROR_SUCCESS &&
           MsiSummaryInfoSetPropertyW(summary, package_code, VT_LPSTR, 0, nullptr, new_guid().c_str()) ==
               ERROR_SUCCESS &&
           MsiSummaryInfoPersist(summary) == ERROR_SUCCESS && MsiDatabaseCommit(database) == ERROR_SUCCESS;
}

// The installed products of the package's upgrade code.
std::vector<std::wstring> related_products(const std::wstring& upgrade_code)
{
    std::vector<std::wstring> products;
    wchar_t product[39];
    for (DWORD i = 0; MsiEnumRelatedProductsW(upgrade_code.c_str(), 0, i, product) == ERROR_SUCCESS; ++i)
        products.emplace_back(product);
    return products;
}

// ---- the registry ---------------------------------------------------------

const std::wstring proxy_class = L"{5B0C3D52-6F0A-4C41-9E7B-3A1D2C4F8E61}";
const std::wstring moniker_class = L"CLSID\\{DE8AB314-CDD2-4600-8139-6285F46937AC}";

// The keys registration writes, found by name: the scheme, the ProgIDs, the
// classes, the AppID and every interface whose proxy/stub is ours.
std::vector<std::wstring> our_keys(REGSAM view)
{
    std::vector<std::wstring> keys = {L"kor",
                                      L"Corvane.Tarn.Moniker",
                                      L"Corvane.Tarn.Moniker.1",
                                      moniker_class,
                                      L"CLSID\\" + proxy_class,
                                      L"AppID\\{E5693989-AC7B-424D-B28F-89CB8FA28587}",
                                      L"AppID\\KORPS.DLL"};
    HKEY interfaces = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, L"Interface", 0, KEY_READ | view, &interfaces) != ERROR_SUCCESS)
        return keys;
    wchar_t name[256];
    for (DWORD i = 0;; ++i) {
        DWORD size = 256;
        if (RegEnumKeyExW(interfaces, i, name, &size, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            break;
        const std::wstring key = L"Interface\\" + std::wstring(name);
        if (lower(classes_text(key + L"\\ProxyStubClsid32", nullptr, view)) == lower(proxy_class))
            keys.push_back(key);
    }
    RegCloseKey(interfaces);
    return keys;
}

// What lies in the registry below our keys, one entry a key ("key path") and
// one a value ("key path : name" = data); key paths in lower case, as the
// registry compares them, and the module path as %MODULE%.
using registry_image = std::map<std::wstring, std::wstring>;

void add_key(const std::wstring& path, REGSAM view, const std::wstring& module, registry_image& image)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0, KEY_READ | view, &key) != ERROR_SUCCESS)
        return;
    image[lower(path)] = L"(key)";
    wchar_t name[256];
    BYTE data[4096];
    for (DWORD i = 0;; ++i) {
        DWORD name_size = 256, data_size = sizeof data - sizeof(wchar_t), type = 0;
        if (RegEnumValueW(key, i, name, &name_size, nullptr, &type, data, &data_size) != ERROR_SUCCESS)
            break;
        std::wstring text = L"(type " + std::to_wstring(type) + L")";
        if (type == REG_SZ) {
            text.assign(reinterpret_cast<const wchar_t*>(data), data_size / sizeof(wchar_t));
            text.erase(std::find(text.begin(), text.end(), L'\0'), text.end());
            const std::size_t at = lower(text).find(lower(module));
            if (!module.empty() && at != std::wstring::npos)
                text.replace(at, module.size(), L"%MODULE%");
        }
        image[lower(path) + L" : " + name] = text;
    }
    for (DWORD i = 0;; ++i) {
        DWORD size = 256;
        if (RegEnumKeyExW(key, i, name, &size, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            break;
        add_key(path + L"\\" + name, view, module, image);
    }
    RegCloseKey(key);
}

registry_image our_registry(REGSAM view, const std::wstring& module)
{
    registry_image image;
    for (const std::wstring& key : our_keys(view))
        add_key(key, view, module, image);
    return image;
}

std::size_t interface_count(const registry_image& image)
{
    return std::count_if(image.begin(), image.end(), [](const auto& entry) {
        return entry.first.starts_with(L"interface\\") && entry.first.ends_with(L"\\proxystubclsid32 : ");
    });
}

// Every entry that differs, one line each, for the failure message.
std::string differences(const registry_image& expected, const registry_image& actual)
{
    std::wstring lines;
    for (const auto& [entry, data] : expected) {
        const auto found = actual.find(entry);
        if (found == actual.end())
            lines += L"  missing: " + entry + L" = " + data + L"\n";
        else if (found->second != data)
            lines += L"  differs: " + entry + L" = " + found->second + L", not " + data + L"\n";
    }
    for (const auto& [entry, data] : actual)
        if (!expected.contains(entry))
            lines += L"  extra:   " + entry + L" = " + data + L"\n";
    return testing::PrintToString(lines);
}

// ---- the fixture ----------------------------------------------------------

// The package of one width, where scripts/package puts it.
std::wstring package_of(const char* width)
{
    return widen(KORPS_PACKAGE_DIR) + L"\\korps-" + widen(KORPS_VERSION_TEXT) + L"-" + widen(width) + L".msi";
}

class Package : public testing::Test {
protected:
    const std::wstring package = package_of(arch);
    const std::wstring module = installed_folder() + L"\\korps.dll";
    const std::wstring module32 = installed_folder(FOLDERID_ProgramFilesX86) + L"\\korps.dll";
    std::wstring product_code, upgrade_code;

    void SetUp() override
    {
        ASSERT_TRUE(file_exists(package)) << testing::PrintToString(package) << " is missing: run scripts/package";
        product_code = package_property(package, L"ProductCode");
        upgrade_code = package_property(package, L"UpgradeCode");
        ASSERT_FALSE(product_code.empty() || upgrade_code.empty()) << "the package names no product or upgrade code";
        remove_everything();
    }

    void TearDown() override { remove_everything(); }

    // Whatever a failed test left behind: every product of either package's
    // upgrade code, and a registration by hand.
    void remove_everything()
    {
        for (const char* width : {"x86", "x64"})
            for (const std::wstring& product : related_products(package_property(package_of(width), L"UpgradeCode")))
                msiexec(L"/x " + product, "cleanup");
        regsvr32(L"/u " + quoted(build_folder() + L"\\korps.dll"));
    }

    DWORD install(const char* what = "install") { return msiexec(L"/i " + quoted(package), what); }
    DWORD remove() { return msiexec(L"/x " + quoted(package), "remove"); }

    bool installed(const std::wstring& product) const
    {
        return MsiQueryProductStateW(product.c_str()) == INSTALLSTATE_DEFAULT;
    }

    // The views the package writes, each with the module registered there.
    std::vector<std::pair<REGSAM, std::wstring>> views() const
    {
        if (carries_both_modules)
            return {{0, module}, {KEY_WOW64_32KEY, module32}};
        return {{0, module}};
    }
};

TEST_F(Package, InstallsSilentlyWithItsFilesAndVersion)
{
    ASSERT_EQ(install(), 0u);
    EXPECT_TRUE(installed(product_code));
    std::vector<std::wstring> files = {module, installed_folder() + L"\\korps.exe",
                                       installed_folder() + L"\\docs\\deployment.md"};
    if (carries_both_modules)
        files.push_back(module32);
    for (const std::wstring& file : files)
        EXPECT_TRUE(file_exists(file)) << testing::PrintToString(file);
    // The very korps.dll whose version resource module.StaticChecks reads.
    EXPECT_TRUE(file_bytes(module) == file_bytes(build_folder() + L"\\korps.dll"))
        << "the package holds another korps.dll than this build's: run scripts/package";

    // What the installed programs list shows.
    const std::wstring key = L"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + product_code;
    EXPECT_EQ(registry_text(HKEY_LOCAL_MACHINE, key, L"DisplayVersion"), widen(KORPS_VERSION_TEXT));
    EXPECT_EQ(registry_text(HKEY_LOCAL_MACHINE, key, L"DisplayName"), package_property(package, L"ProductName"));
}

// The package's rows against what registration writes, for the build's
// module registered with regsvr32, the module's path aside. The 64-bit
// package's 32-bit view is held to the same registration: the rows of both
// modules come from the same scripts and proxy tables, and a machine that
// executes 64-bit code only cannot run the 32-bit regsvr32.
TEST_F(Package, WritesWhatRegistrationWritesKeyByKey)
{
    const std::wstring built = build_folder() + L"\\korps.dll";
    ASSERT_EQ(regsvr32(quoted(built)), 0u);
    const registry_image registered = our_registry(0, built);
    ASSERT_EQ(regsvr32(L"/u " + quoted(built)), 0u);
    ASSERT_EQ(interface_count(registered), 46u);
    ASSERT_TRUE(our_registry(0, built).empty()) << "regsvr32 /u left keys behind";

    ASSERT_EQ(install(), 0u);
    for (const auto& [view, path] : views()) {
        const registry_image image = our_registry(view, path);
        EXPECT_TRUE(image == registered) << (view ? "32-bit view" : "the package's own view") << "\n"
                                         << differences(registered, image);
    }
}

TEST_F(Package, TheInstalledModuleServesKorNamesWithoutRegsvr32)
{
    ASSERT_EQ(install(), 0u);
    const platform_parse parsed = parse_through_platform(L"kor:fcn1l-10.0.0.1");
    ASSERT_EQ(parsed.result, S_OK);
    EXPECT_EQ(parsed.displayName, L"kor:fcn1l-10.0.0.1");
    EXPECT_EQ(lower(parsed.loadedFrom), lower(module)) << "the class came from another korps.dll";
}

// What /fa asks for, spelled as properties: Wine's msiexec does not take /f
// with a package path.
TEST_F(Package, RepairRestoresADeletedKeyAndFile)
{
    ASSERT_EQ(install(), 0u);
    for (const auto& [view, path] : views())
        ASSERT_EQ(RegDeleteKeyExW(HKEY_CLASSES_ROOT, (moniker_class + L"\\InprocServer32").c_str(), view, 0),
                  ERROR_SUCCESS);
    ASSERT_EQ(RegDeleteTreeW(HKEY_CLASSES_ROOT, L"kor"), ERROR_SUCCESS);
    const std::wstring program = installed_folder() + L"\\korps.exe";
    ASSERT_TRUE(DeleteFileW(program.c_str()));

    ASSERT_EQ(msiexec(L"/i " + quoted(package) + L" REINSTALL=ALL REINSTALLMODE=a", "repair"), 0u);
    EXPECT_EQ(classes_text(L"kor"), L"Kor Moniker");
    for (const auto& [view, path] : views())
        EXPECT_EQ(lower(classes_text(moniker_class + L"\\InprocServer32", nullptr, view)), lower(path));
    EXPECT_TRUE(file_exists(program));
}

TEST_F(Package, ANewerPackageReplacesAnOlderOne)
{
    static_assert(KORPS_VERSION_MAJOR >= 1, "the older package is version 0.9.0");
    const std::wstring older = build_folder() + L"\\package-older.msi";
    ASSERT_TRUE(make_older_copy(package, older, L"0.9.0"));
    const std::wstring older_product = package_property(older, L"ProductCode");
    ASSERT_EQ(msiexec(L"/i " + quoted(older), "install-older"), 0u);
    ASSERT_TRUE(installed(older_product));

    ASSERT_EQ(install("upgrade"), 0u);
    EXPECT_EQ(related_products(upgrade_code), std::vector<std::wstring>{product_code});
    EXPECT_FALSE(installed(older_product));
    for (const auto& [view, path] : views()) {
        EXPECT_EQ(interface_count(our_registry(view, path)), 46u);
        EXPECT_EQ(lower(classes_text(moniker_class + L"\\InprocServer32", nullptr, view)), lower(path));
    }

    // Removing the newer one leaves nothing of either.
    ASSERT_EQ(remove(), 0u);
    for (const auto& [view, path] : views())
        EXPECT_TRUE(our_registry(view, path).empty()) << differences({}, our_registry(view, path));
    DeleteFileW(older.c_str());
}

// Removal takes what the package wrote and keeps what others put there, as
// unregistration does.
TEST_F(Package, RemovalLeavesNoFileOrKeyOfOursAndKeepsForeignOnes)
{
    ASSERT_EQ(install(), 0u);
    const std::wstring foreign_class = L"CLSID\\{0F0E0D0C-0B0A-4909-8807-060504030201}";
    const std::wstring foreign_interface = L"Interface\\{0F0E0D0C-0B0A-4909-8807-060504030201}";
    const std::wstring foreign_subkey = L"Corvane.Tarn.Moniker\\Foreign";
    for (const std::wstring& key : {foreign_class, foreign_interface, foreign_subkey})
        ASSERT_EQ(RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, L"kept", 10), ERROR_SUCCESS);

    ASSERT_EQ(remove(), 0u);
    EXPECT_FALSE(installed(product_code));
    const registry_image foreign_only = {{L"corvane.tarn.moniker", L"(key)"},
                                         {L"corvane.tarn.moniker\\foreign", L"(key)"},
                                         {L"corvane.tarn.moniker\\foreign : ", L"kept"}};
    const registry_image left = our_registry(0, module);
    EXPECT_TRUE(left == foreign_only) << differences(foreign_only, left);
    if (carries_both_modules) {
        EXPECT_TRUE(our_registry(KEY_WOW64_32KEY, module32).empty());
    }
    for (const std::wstring& key : {foreign_class, foreign_interface})
        EXPECT_EQ(classes_text(key), L"kept") << testing::PrintToString(key);
    EXPECT_FALSE(file_exists(installed_folder())) << "the installation folder is still there";
    if (carries_both_modules) {
        EXPECT_FALSE(file_exists(installed_folder(FOLDERID_ProgramFilesX86)));
    }

    RegDeleteTreeW(HKEY_CLASSES_ROOT, foreign_class.c_str());
    RegDeleteTreeW(HKEY_CLASSES_ROOT, foreign_interface.c_str());
    RegDeleteTreeW(HKEY_CLASSES_ROOT, L"Corvane.Tarn.Moniker");
}

#ifdef _WIN64
// Where both packages are installed, the 32-bit module is one component with
// two clients: it and its registration stay until the last of them goes.
TEST_F(Package, BothPackagesShareThe32BitModule)
{
    const std::wstring package32 = package_of("x86");
    ASSERT_TRUE(file_exists(package32)) << testing::PrintToString(package32) << " is missing: run scripts/package";
    ASSERT_EQ(install(), 0u);
    ASSERT_EQ(msiexec(L"/i " + quoted(package32), "install-x86"), 0u);

    ASSERT_EQ(remove(), 0u);
    EXPECT_FALSE(file_exists(module));
    EXPECT_TRUE(file_exists(module32));
    EXPECT_EQ(interface_count(our_registry(KEY_WOW64_32KEY, module32)), 46u);
    EXPECT_EQ(lower(classes_text(moniker_class + L"\\InprocServer32", nullptr, KEY_WOW64_32KEY)), lower(module32));

    ASSERT_EQ(msiexec(L"/x " + quoted(package32), "remove-x86"), 0u);
    EXPECT_FALSE(file_exists(module32));
    EXPECT_TRUE(our_registry(KEY_WOW64_32KEY, module32).empty());
}
#endif

}   // namespace
