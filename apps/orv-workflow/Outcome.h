#pragma once

#include "Failure.h"

#include <optional>
#include <utility>
#include <variant>

namespace orv::cli {

/// A value, or the Failure that stands in its way. Who can't go on passes the failure on:
///
///     const Outcome<LoadedWorkflow> workflow = loadWorkflow(file);
///     if (workflow.hasFailed())
///         return workflow.failure();
///     use(*workflow);
///
/// Reading the value of what has failed is a programming error. Outcome<void> tells only whether the work was
/// done.
template<typename T>
class [[nodiscard]] Outcome
{
public:
    Outcome(T value) // implicit: `return value;`
        : m_content(std::move(value))
    {}
    Outcome(Failure failure) // implicit: `return failure;`
        : m_content(std::move(failure))
    {}

    [[nodiscard]] bool hasFailed() const { return std::holds_alternative<Failure>(m_content); }
    [[nodiscard]] const Failure &failure() const { return std::get<Failure>(m_content); }

    [[nodiscard]] const T &operator*() const & { return std::get<T>(m_content); }
    [[nodiscard]] T &operator*() & { return std::get<T>(m_content); }
    [[nodiscard]] T operator*() && { return std::get<T>(std::move(m_content)); }
    const T *operator->() const { return &**this; }
    T *operator->() { return &**this; }

private:
    std::variant<T, Failure> m_content;
};

template<>
class [[nodiscard]] Outcome<void>
{
public:
    Outcome() = default;     // `return {};`
    Outcome(Failure failure) // implicit: `return failure;`
        : m_failure(std::move(failure))
    {}

    [[nodiscard]] bool hasFailed() const { return m_failure.has_value(); }
    [[nodiscard]] const Failure &failure() const { return m_failure.value(); }
    /// For reports, which keep it.
    [[nodiscard]] const std::optional<Failure> &failureIfAny() const { return m_failure; }

private:
    std::optional<Failure> m_failure;
};

} // namespace orv::cli
