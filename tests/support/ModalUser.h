#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <deque>
#include <functional>
#include <gtest/gtest.h>

namespace quillford {

/// A user at windows that stand before all others. What is told by `meets` is done in this order,
/// each once a window of its kind is up; a step that opens a further window leaves that to the
/// next step. A window that does not come, or that nobody expects, fails the test instead of
/// stopping it for ever.
class ModalUser final : public QObject {
public:
    ~ModalUser() override {
        EXPECT_TRUE(steps_.empty()) << steps_.size() << " windows have not come up";
    }

    /// Has `act` called with the window that is up, a reference to `Window`.
    template <typename Window, typename Act>
    ModalUser& meets(Act act) {
        steps_.push_back({[](QWidget* shown) { return qobject_cast<Window*>(shown) != nullptr; },
                          [act](QWidget* shown) { act(*qobject_cast<Window*>(shown)); }});
        if (!looking_)
            look();
        return *this;
    }

private:
    struct Step {
        std::function<bool(QWidget*)> fits;
        std::function<void(QWidget*)> act;
    };

    static constexpr std::chrono::seconds Patience{10};

    void look() {
        looking_ = true;
        QTimer::singleShot(1, this, [this] { meet(QApplication::activeModalWidget()); });
    }

    void meet(QWidget* shown) {
        looking_ = false;
        const bool fits = shown && shown->isVisible() && steps_.front().fits(shown);
        // The window behind a box that was closed does not become active by itself.
        if (fits && !shown->isActiveWindow())
            shown->activateWindow();
        if (fits && shown->isActiveWindow()) {
            const Step step = std::move(steps_.front());
            steps_.pop_front();
            patience_ = QDeadlineTimer(Patience);
            if (!steps_.empty())
                look();
            step.act(shown);
        } else if (patience_.hasExpired()) {
            ADD_FAILURE() << "the window that was expected is not up";
            steps_.clear();
            if (shown)
                shown->close();
        } else {
            look();
        }
    }

    std::deque<Step> steps_;
    QDeadlineTimer patience_{Patience};
    bool looking_ = false;
};

} // namespace quillford
