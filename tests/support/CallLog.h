#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

namespace quillford {

using Calls = std::vector<std::string>;

/// The calls that several interfaces receive, in one order, each as the line that a reader would
/// write for it. The fakes that share a log hold a reference to it.
class CallLog {
public:
    Calls calls;
    /// Looks at the world in the middle of a call.
    std::function<void(const std::string& call)> during;

    void take(const std::string& call) {
        calls.push_back(call);
        if (during)
            during(call);
    }

    /// Where the call stands in the log, its end if it is not there.
    [[nodiscard]] Calls::difference_type find(const std::string& call) const {
        return std::find(calls.begin(), calls.end(), call) - calls.begin();
    }

    [[nodiscard]] bool has(const std::string& call) const {
        return std::find(calls.begin(), calls.end(), call) != calls.end();
    }
};

/// "name 3", "name 3 on".
inline std::string callText(const std::string& name, int number) {
    return name + ' ' + std::to_string(number);
}

inline std::string callText(const std::string& name, int number, bool on) {
    return callText(name, number) + (on ? " on" : " off");
}

} // namespace quillford
