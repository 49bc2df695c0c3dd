#pragma once

#include "platform/UserPrompts.h"
#include "support/PrintQt.h"

#include <ostream>
#include <vector>

namespace quillford {

/// A user who reads every box and closes it. All boxes are kept in the order in which they were
/// shown; a kind of question that the program learns to ask takes its answers from a script beside
/// them and fails the test when the script has run out.
class FakePrompts final : public UserPrompts {
public:
    struct Box {
        Icon icon;
        QString title;
        QString text;

        friend bool operator==(const Box&, const Box&) = default;

        friend void PrintTo(const Box& box, std::ostream* out) {
            *out << "icon " << static_cast<int>(box.icon) << ", ";
            PrintTo(box.title, out);
            *out << ": ";
            PrintTo(box.text, out);
        }
    };

    std::vector<Box> boxes;

    void showMessage(Icon icon, const QString& title, const QString& text) override {
        boxes.push_back({icon, title, text});
    }
};

} // namespace quillford
