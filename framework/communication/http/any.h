// A single value of any type, told apart by its run-time type. A plain value: copying copies what it holds.
#pragma once

#include <type_traits>
#include <typeinfo>
#include <utility>

/// What an Any keeps its value in.
class HolderBase
{
public:
    virtual ~HolderBase() = default;
    virtual const std::type_info &type() const = 0;
    /// A new copy on the heap, owned by the caller.
    virtual HolderBase *clone() const = 0;
};

template <class T> class Holder : public HolderBase
{
public:
    explicit Holder(T held) : value(std::move(held)) {}
    const std::type_info &type() const override { return typeid(T); }
    HolderBase *clone() const override { return new Holder(value); }

    T value;
};

class Any
{
    /// A value that may be held: no Any in an Any, and no pointer whose target could go away.
    template <class T>
    using Held =
        std::enable_if_t<!std::is_same_v<std::decay_t<T>, Any> && !std::is_pointer_v<std::decay_t<T>>,
                         std::decay_t<T>>;

public:
    Any() = default;
    template <class T, class Kept = Held<T>>
    explicit Any(T &&value) : m_holder(new Holder<Kept>(std::forward<T>(value)))
    {
    }
    Any(const Any &other) : m_holder(other.m_holder ? other.m_holder->clone() : nullptr) {}
    Any(Any &&other) noexcept : m_holder(std::exchange(other.m_holder, nullptr)) {}
    ~Any() { delete m_holder; }

    Any &operator=(Any other) noexcept
    {
        std::swap(m_holder, other.m_holder);
        return *this;
    }
    template <class T, class Kept = Held<T>> Any &operator=(T &&value)
    {
        return *this = Any(std::forward<T>(value));
    }

    bool isEmpty() const { return !m_holder; }
    const std::type_info &type() const { return m_holder ? m_holder->type() : typeid(void); }

    /// A copy of the value. T must be the very type that is held, else std::bad_cast.
    template <class T> T cast() const
    {
        if (const T *value = look<T>())
            return *value;
        throw std::bad_cast();
    }
    /// The value in its place, null if another type is held.
    template <class T> const T *look() const
    {
        const auto *holder = dynamic_cast<const Holder<T> *>(m_holder);
        return holder ? &holder->value : nullptr;
    }
    template <class T> T *look() { return const_cast<T *>(std::as_const(*this).template look<T>()); }

private:
    HolderBase *m_holder = nullptr;
};
