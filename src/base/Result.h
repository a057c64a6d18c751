#pragma once

#include "base/Error.h"

#include <utility>

namespace tabo {

// A value, or the Error that kept it from being made. Functions of the core
// that produce something return a Result; those that only succeed or fail
// return an Error (empty on success).
template <typename T>
class Result
{
public:
    Result(T value)
        : m_value(std::move(value))
    {
    }
    Result(Error error)
        : m_error(std::move(error))
    {
    }

    bool ok() const { return !m_error; }
    explicit operator bool() const { return ok(); }
    const T &value() const { return m_value; }
    T &value() { return m_value; }
    const Error &error() const { return m_error; }

private:
    T m_value{};
    Error m_error;
};

} // namespace tabo
