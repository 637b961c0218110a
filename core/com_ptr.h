// One owned reference to a COM interface, released when the holder goes, so
// that every path out of a function gives back what it took; and make_com,
// the one way the module makes its COM objects. Anything counted with
// AddRef and Release is held alike: the native build's stand-in error object
// (core/error_info.h) too, which has no interfaces to query.
#pragma once

#include <new>
#include <utility>

#include "core/win_types.h"

template <class Interface>
class com_ptr;

#ifdef _WIN32
// What com_ptr::query gives: the interface with S_OK, or null with the
// object's refusal (E_NOINTERFACE as a rule).
template <class Interface>
struct com_query {
    HRESULT result;
    com_ptr<Interface> ptr;
};
#endif

template <class Interface>
class com_ptr {
public:
    com_ptr() noexcept = default;
    // Takes over a reference the caller already owns.
    explicit com_ptr(Interface* adopted) noexcept : p_(adopted) {}
    // Takes a reference of its own to an object the caller goes on holding.
    static com_ptr share(Interface* borrowed) noexcept
    {
        if (borrowed)
            borrowed->AddRef();
        return com_ptr(borrowed);
    }
    com_ptr(com_ptr&& other) noexcept : p_(other.detach()) {}
    com_ptr& operator=(com_ptr&& other) noexcept
    {
        if (this != &other) {
            reset();
            p_ = other.detach();
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

    // Hands the reference to the caller, who releases it: for an out
    // parameter of a call that succeeded. Holds nothing afterwards.
    [[nodiscard]] Interface* detach() noexcept { return std::exchange(p_, nullptr); }

#ifdef _WIN32
    // The held object's `Other` interface, asked for by its IID (__uuidof,
    // so `Other` is one of the platform's or the module's declared
    // interfaces). Must hold an object.
    template <class Other>
    com_query<Other> query() const noexcept
    {
        com_ptr<Other> other;
        const HRESULT result = p_->QueryInterface(__uuidof(Other), other.put_void());
        return {result, std::move(other)};
    }
#endif

private:
    Interface* p_ = nullptr;
};

// A new COM object of the module, holding the one reference it starts with,
// which the com_ptr adopts; null when memory ran out. Every object the module
// hands out is made here, starts at 1 and is handed on with detach() or a
// QueryInterface; its constructor may not throw.
template <class Object, class... Args>
com_ptr<Object> make_com(Args&&... args) noexcept
{
    static_assert(noexcept(new (std::nothrow) Object(std::declval<Args>()...)), "the constructor may not throw");
    return com_ptr<Object>(new (std::nothrow) Object(std::forward<Args>(args)...));
}
