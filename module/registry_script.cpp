#include "module/registry_script.h"

#include <algorithm>

#include "core/text_reader.h"

namespace registry {
namespace {

constexpr bool is_space(wchar c) noexcept
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

struct token {
    wstring text;
    bool quoted = false;

    bool is(std::string_view word) const noexcept { return !quoted && ascii_equal(text, word); }
};

// Reads the script's tokens with the text reader, expanding the replacement
// variables, and names the line of anything it cannot read.
class script_reader {
public:
    script_reader(wstring_view text, std::span<const replacement> replacements) noexcept
        : text_(text), in_(text), replacements_(replacements)
    {}

    bool at_end()
    {
        skip_space();
        return in_.rest().empty();
    }

    std::size_t line() const noexcept
    {
        const wstring_view done = text_.substr(0, in_.position());
        return 1 + static_cast<std::size_t>(std::count(done.begin(), done.end(), wchar('\n')));
    }

    [[noreturn]] void fail(const std::string& what) const { fail_at(line(), what); }

    [[noreturn]] static void fail_at(std::size_t line, const std::string& what)
    {
        throw script_error("registry script, line " + std::to_string(line) + ": " + what);
    }

    // A single-character token: "{", "}" or "=".
    bool skip_mark(char mark)
    {
        skip_space();
        const wstring_view rest = in_.rest();
        if (rest.empty() || rest[0] != wchar(mark))
            return false;
        // A brace that starts a longer word is a key name such as "{DE8A...}".
        if (mark != '=' && rest.size() > 1 && !is_space(rest[1]))
            return false;
        in_.advance(1);
        return true;
    }

    void expect_mark(char mark)
    {
        if (!skip_mark(mark))
            fail(std::string("expected '") + mark + "'");
    }

    token read_token()
    {
        skip_space();
        const wstring_view rest = in_.rest();
        if (rest.empty())
            fail("unexpected end of the script");
        if (rest[0] == '\'')
            return {expand(read_quoted()), true};
        std::size_t n = 0;
        while (n < rest.size() && !is_space(rest[n]) && rest[n] != '=')
            ++n;
        if (n == 0 || (n == 1 && (rest[0] == '{' || rest[0] == '}')))
            fail("expected a name");
        in_.advance(n);
        return {expand(rest.substr(0, n)), false};
    }

    // "s 'text'": the one value type the module's scripts use.
    wstring read_string_value()
    {
        const token type = read_token();
        if (!type.is("s"))
            fail("unsupported value type '" + narrow(type.text) + "'");
        const std::size_t type_line = line();
        skip_space();
        if (in_.rest().empty() || in_.rest()[0] != '\'')
            fail_at(type_line, "expected a quoted value");
        return expand(read_quoted());
    }

    static std::string narrow(wstring_view text)
    {
        std::string out;
        for (wchar c : text)
            out += c < 0x80 ? static_cast<char>(c) : '?';
        return out;
    }

private:
    void skip_space()
    {
        while (!in_.rest().empty() && is_space(in_.rest()[0]))
            in_.advance(1);
    }

    // Between single quotes; a doubled quote stands for one.
    wstring read_quoted()
    {
        const std::size_t start_line = line();
        in_.advance(1);
        wstring text;
        for (;;) {
            const wstring_view rest = in_.rest();
            if (rest.empty())
                fail_at(start_line, "unterminated string");
            if (rest[0] == '\'') {
                in_.advance(1);
                if (!in_.skip("'"))
                    return text;
                text += '\'';
                continue;
            }
            text += rest[0];
            in_.advance(1);
        }
    }

    wstring expand(wstring_view raw) const
    {
        wstring out;
        for (std::size_t i = 0; i < raw.size(); ++i) {
            if (raw[i] != '%') {
                out += raw[i];
                continue;
            }
            const std::size_t end = raw.find(wchar('%'), i + 1);
            if (end == wstring_view::npos)
                fail("unterminated variable");
            const wstring_view name = raw.substr(i + 1, end - i - 1);
            if (name.empty()) {
                out += '%';
            } else {
                const auto found = std::find_if(replacements_.begin(), replacements_.end(),
                                                [&](const replacement& r) { return ascii_equal(name, r.name); });
                if (found == replacements_.end())
                    fail("unknown variable %" + narrow(name) + "%");
                out += found->text;
            }
            i = end;
        }
        return out;
    }

    wstring_view text_;
    text_reader in_;
    std::span<const replacement> replacements_;
};

void parse_block(script_reader& in, script& out, const wstring& parent, std::size_t owner, std::size_t opened);

// A key with its flag already read; `name` is its first token.
void parse_key(script_reader& in, script& out, const wstring& parent, token name)
{
    flag removal = flag::none;
    if (name.is("NoRemove") || name.is("ForceRemove")) {
        removal = name.is("NoRemove") ? flag::no_remove : flag::force_remove;
        name = in.read_token();
    }
    if (name.text.empty() || name.text.find(wchar('\\')) != wstring::npos)
        in.fail("invalid key name");
    key k;
    k.path = parent.empty() ? name.text : parent + wchar('\\') + name.text;
    k.removal = removal;
    k.line = in.line();
    if (in.skip_mark('='))
        k.values.push_back({wstring(), in.read_string_value()});
    const wstring path = k.path;
    out.push_back(std::move(k));
    if (in.skip_mark('{'))
        parse_block(in, out, path, out.size() - 1, in.line());
}

// The inside of a key's braces, up to and with the closing brace; `opened`
// is the line of the opening one.
void parse_block(script_reader& in, script& out, const wstring& parent, std::size_t owner, std::size_t opened)
{
    while (!in.skip_mark('}')) {
        if (in.at_end())
            script_reader::fail_at(opened, "missing '}'");
        token t = in.read_token();
        if (!t.is("val")) {
            parse_key(in, out, parent, std::move(t));
            continue;
        }
        const token name = in.read_token();
        in.expect_mark('=');
        out[owner].values.push_back({name.text, in.read_string_value()});
    }
}

}   // namespace

script parse_script(wstring_view text, std::span<const replacement> replacements)
{
    script_reader in(text, replacements);
    script out;
    while (!in.at_end()) {
        const token root = in.read_token();
        if (!root.is("HKCR") && !root.is("HKEY_CLASSES_ROOT"))
            in.fail("unsupported root key '" + script_reader::narrow(root.text) + "'");
        in.expect_mark('{');
        const std::size_t opened = in.line();
        while (!in.skip_mark('}')) {
            if (in.at_end())
                script_reader::fail_at(opened, "missing '}'");
            token t = in.read_token();
            if (t.is("val"))
                in.fail("a value outside any key");
            parse_key(in, out, wstring(), std::move(t));
        }
    }
    return out;
}

}   // namespace registry
