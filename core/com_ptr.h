// One owned reference to a COM interface, released when the holder goes, so
// that every path out of a function gives back what it took.
#pragma once

#include <utility>

#include "core/win_types.h"

template <class Interface>
class com_ptr {
public:
    com_ptr() noexcept = default;
    // Takes over a reference the caller already owns.
    explicit com_ptr(Interface* adopted) noexcept : p_(adopted) {}
    com_ptr(com_ptr&& other) noexcept : p_(std::exchange(other.p_, nullptr)) {}
    com_ptr& operator=(com_ptr&& other) noexcept
    {
        if (this != &other) {
            reset();
            p_ = std::exchange(other.p_, nullptr);
        }
        return *this;
    }
    com_ptr(const com_ptr&) = delete;
    com_ptr& operator=(const com_ptr&) = delete;
    ~com_ptr() { reset(); }

    Interface* get() const noexcept { return p_; }
    Interface* operator->() const noexcept { return p_; }
    explicit operator bool() const noexcept { return p_ != nullptr; }

    // For an out parameter: whatever was held is released first.
    Interface** put() noexcept
    {
        reset();
        return &p_;
    }
    void** put_void() noexcept { return reinterpret_cast<void**>(put()); }

    void reset() noexcept
    {
        if (p_)
            std::exchange(p_, nullptr)->Release();
    }

private:
    Interface* p_ = nullptr;
};
