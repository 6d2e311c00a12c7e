#pragma once

#include <orv/core/Error.h>

#include <QStringList>

#include <optional>
#include <type_traits>
#include <utility>

namespace orv {

/// Texts about things that went on all the same, for the user.
using Warnings = QStringList;

/// A value or an Error, together with Warnings. Move-only values are fine; Result<void> is an Error with
/// warnings. Reading value() of a failed Result is a programming error and asserts.
template<typename T>
class [[nodiscard]] Result
{
    static_assert(!std::is_same_v<std::decay_t<T>, Error>, "an Error is not a value");

public:
    using ValueType = T;

    /// A value that says nothing yet, for frameworks that make a Result before they assign to it.
    Result() requires std::is_default_constructible_v<T> : m_value(T()) {}
    Result(T value, Warnings warnings = {}) // implicit: `return value;`
        : m_value(std::move(value))
        , m_warnings(std::move(warnings))
    {}

    /// \a error must be a failure: a success carries no value.
    Result(Error error, Warnings warnings = {}) // implicit: `return error;`
        : m_error(std::move(error))
        , m_warnings(std::move(warnings))
    {
        Q_ASSERT_X(m_error.hasError(), "Result", "a Result without a value needs a failure");
    }

    [[nodiscard]] bool hasError() const { return !m_value.has_value(); }
    explicit operator bool() const { return m_value.has_value(); }

    [[nodiscard]] const Error &error() const { return m_error; }

    [[nodiscard]] const T &value() const & { return checked(*this); }
    [[nodiscard]] T &value() & { return checked(*this); }
    [[nodiscard]] T value() && { return std::move(checked(*this)); }
    [[nodiscard]] T valueOr(T fallback) const & { return m_value.value_or(std::move(fallback)); }

    const T &operator*() const & { return value(); }
    T &operator*() & { return value(); }
    const T *operator->() const { return &value(); }
    T *operator->() { return &value(); }

    [[nodiscard]] const Warnings &warnings() const { return m_warnings; }
    void addWarning(const QString &warning) { m_warnings.append(warning); }

    /// As Error::ecatch; returns the error to pass on.
    Error &ecatch(SourceLocation place = SourceLocation::current()) { return m_error.ecatch(place); }
    Error &ecatch(const char *function, const char *file, int line)
    {
        return m_error.ecatch(function, file, line);
    }

private:
    template<typename Self>
    static auto &checked(Self &self)
    {
        Q_ASSERT_X(self.m_value.has_value(), "Result::value", "the Result holds an error");
        return *self.m_value;
    }

    std::optional<T> m_value;
    Error m_error;
    Warnings m_warnings;
};

template<>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Error error, Warnings warnings = {}) // implicit: `return error;`
        : m_error(std::move(error))
        , m_warnings(std::move(warnings))
    {}

    [[nodiscard]] bool hasError() const { return m_error.hasError(); }
    explicit operator bool() const { return !hasError(); }
    [[nodiscard]] const Error &error() const { return m_error; }
    [[nodiscard]] const Warnings &warnings() const { return m_warnings; }
    void addWarning(const QString &warning) { m_warnings.append(warning); }

    Error &ecatch(SourceLocation place = SourceLocation::current()) { return m_error.ecatch(place); }
    Error &ecatch(const char *function, const char *file, int line)
    {
        return m_error.ecatch(function, file, line);
    }

private:
    Error m_error;
    Warnings m_warnings;
};

} // namespace orv
