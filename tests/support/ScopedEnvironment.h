#pragma once

#include <QByteArray>

#include <optional>
#include <utility>

namespace quillford {

/// Sets an environment variable, or takes it away, until the end of the scope.
class ScopedEnvironment {
public:
    ScopedEnvironment(const char* name, std::optional<QByteArray> value) : name_(name) {
        if (qEnvironmentVariableIsSet(name))
            before_ = qgetenv(name);
        set(value);
    }

    ~ScopedEnvironment() { set(before_); }

    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
    ScopedEnvironment(ScopedEnvironment&&) = delete;
    ScopedEnvironment& operator=(ScopedEnvironment&&) = delete;

private:
    void set(const std::optional<QByteArray>& value) const {
        if (value)
            qputenv(name_, *value);
        else
            qunsetenv(name_);
    }

    const char* name_;
    std::optional<QByteArray> before_;
};

} // namespace quillford
