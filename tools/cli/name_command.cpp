#include <cstdio>
#include <cstring>

#include <nlohmann/json.hpp>

#include "core/errors.h"
#include "core/platform.h"
#include "tools/cli/cli_error.h"
#include "tools/cli/commands.h"
#include "tools/cli/event_lookup.h"
#include "tools/cli/payload_input.h"
#include "moniker/kor_name_kinds.h"
#include "moniker/kor_name_parser.h"
#include "moniker/kor_name_printer.h"
#include "moniker/kor_name_stream.h"
#include "tools/result_names.h"

namespace cli {
namespace {

struct byte_buffer final : byte_sink, byte_source {
    std::vector<std::uint8_t> bytes;
    std::size_t at = 0;
    void write(const std::uint8_t* data, std::size_t count) override { bytes.insert(bytes.end(), data, data + count); }
    void read(std::uint8_t* data, std::size_t count) override
    {
        if (count > bytes.size() - at)
            throw io::underflow();
        std::memcpy(data, bytes.data() + at, count);
        at += count;
    }
};

std::string hex(const std::vector<std::uint8_t>& bytes)
{
    std::string out;
    char two[4];
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::snprintf(two, sizeof two, "%02X", bytes[i]);
        out += (i && i % 4 == 0 ? " " : "") + std::string(two);
    }
    return out;
}

std::string dotted(std::uint32_t a)
{
    return std::to_string(a >> 24) + "." + std::to_string(a >> 16 & 0xFF) + "." + std::to_string(a >> 8 & 0xFF) + "." +
           std::to_string(a & 0xFF);
}

// What the name holds, as JSON: its form, its fields, the canonical text, the
// stream bytes and the hash.
nlohmann::ordered_json describe(const KorName& name)
{
    nlohmann::ordered_json j;
    j["kind"] = name.kind;
    j["form"] = find_kor_name_kind(name.kind)->form;
    switch (name.kind) {
    case KorName::MacAddress: {
        std::vector<std::uint8_t> printed(name.mac.rbegin(), name.mac.rend());
        j["mac"] = hex(printed);
        break;
    }
    case KorName::DeviceAtAddressExtended:
        j["subIndex"] = name.subIndex;
        j["idValue"] = name.idValue;
        [[fallthrough]];
    case KorName::DeviceAtAddress:
        j["deviceType"] = name.deviceType;
        j["address"] = dotted(name.address);
        break;
    default:
        j["transponder"] = name.transponder;
    }
    wchar printed[kor_name_capacity];
    print_kor_name(name, printed, kor_name_capacity);
    j["canonical"] = utf8(printed);
    byte_buffer stream;
    save_kor_name(name, stream);
    j["stream"] = hex(stream.bytes);
    char hash[16];
    std::snprintf(hash, sizeof hash, "0x%08X", static_cast<unsigned>(*kor_name_hash(name)));
    j["hash"] = hash;
    return j;
}

void print_fields(const nlohmann::ordered_json& j)
{
    for (const auto& [key, value] : j.items())
        std::printf("%-12s %s\n", key.c_str(),
                    value.is_string() ? value.get<std::string>().c_str() : value.dump().c_str());
}

}   // namespace

void add_name(CLI::App& app, int& exit_code)
{
    auto* name = app.add_subcommand("name", "Parses a \"kor:\" device name, or reads one from its stream bytes");
    static std::string text, from_stream;
    static bool json = false;
    auto* t = name->add_option("TEXT", text, "The display name, such as kor:fcn1l-10.0.0.1");
    name->add_option("--from-stream", from_stream, "The bytes a saved moniker holds, in hexadecimal")->excludes(t);
    name->add_flag("--json", json, "One JSON object");
    name->callback([&exit_code] {
        KorName parsed;
        nlohmann::ordered_json j;
        if (!from_stream.empty()) {
            byte_buffer stream;
            stream.bytes = hex_bytes(from_stream, "--from-stream");
            // The reason is copied out: the exception's text dies with it.
            std::string why;
            try {
                load_kor_name(parsed, stream);
            } catch (const not_expected&) {
                why = "an unknown kind";   // the kind field names none of the forms
            } catch (const std::exception& e) {
                why = e.what();
            }
            if (!why.empty()) {
                std::fprintf(stderr, "korps: the stream holds no name: %s\n", why.c_str());
                exit_code = failed;
                return;
            }
            j = describe(parsed);
            j["bytes_read"] = stream.at;
        } else {
            if (text.empty())
                throw usage_error("name: give a display name or --from-stream");
            const wstring wide(text.begin(), text.end());
            std::size_t stopped = 0;
            try {
                const auto read = read_kor_name(wide, &stopped);
                if (!read) {
                    std::fprintf(stderr, "korps: '%s' is not a kor: name: it does not start with \"kor:\"\n",
                                 text.c_str());
                    exit_code = failed;
                    return;
                }
                parsed = read->name;
                j = describe(parsed);
                j["eaten"] = read->eaten;
                j["length"] = wide.size();
            } catch (const std::exception& e) {
                if (json) {
                    std::printf("%s\n",
                                nlohmann::ordered_json{{"text", text}, {"error", e.what()}, {"position", stopped}}
                                    .dump(2)
                                    .c_str());
                } else {
                    std::fprintf(stderr, "korps: '%s' is not a kor: name: %s\n  %s\n  %*s^ at unit %zu\n", text.c_str(),
                                 e.what(), text.c_str(), static_cast<int>(stopped), "", stopped);
                }
                exit_code = failed;
                return;
            }
        }
        if (json)
            std::printf("%s\n", j.dump(2).c_str());
        else
            print_fields(j);
        exit_code = success;
    });
}

}   // namespace cli
