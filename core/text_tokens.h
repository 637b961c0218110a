// The things a text reader expects to find, as types. They hold nothing: a
// failed read names them in its message ("Expected a
// identifier<wchar_t>."), so they live in the global namespace and their
// template arguments are plain values that read back exactly as written.
#pragma once

// The default flavour of a text integer: no prefix, no digit grouping.
struct default_tag {};

// A name: a letter or "_", then letters, digits and "_".
template <class Char>
struct identifier {};

// A number of type `Type` in `Radix`, of exactly `Digits` digits at most
// (0: any number of them).
template <class Type, int Radix, int Digits, class Tag>
struct integer {};
