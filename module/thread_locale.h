// Switches the calling thread's locale for a scope and restores it on every
// way out.
#pragma once

#include <windows.h>

class thread_locale_scope {
public:
    explicit thread_locale_scope(LCID locale) noexcept : saved_(GetThreadLocale()) { SetThreadLocale(locale); }
    ~thread_locale_scope() { SetThreadLocale(saved_); }
    thread_locale_scope(const thread_locale_scope&) = delete;
    thread_locale_scope& operator=(const thread_locale_scope&) = delete;

private:
    LCID saved_;
};
