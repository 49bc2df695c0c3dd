#pragma once

#include "editors/pages/PagesFixture.h"

namespace quillford {

/// The pages of Sections 1 to 3.
class FirstPagesFixture : public PagesFixture {
protected:
    FirstPagesFixture();

    static constexpr int IntroductionTab = 0;
    static constexpr int InventorsTab = 1;
    static constexpr int ObjectsTab = 2;

    /// What a field's control shows, of whatever kind it is.
    [[nodiscard]] QString shown(const QString& name) const;

    [[nodiscard]] bool isTinted(const QString& name) const;

    /// Clicks a check box.
    void click(const QString& name);

    /// Presses the Tab key and tells which control has the focus then.
    QString pressTab();
    QString pressBacktab();

    [[nodiscard]] QString focused() const;

    /// The labels of a panel whose text is wider than they are.
    [[nodiscard]] static QStringList clipped(const QWidget& panel);

    // Owned by their panels.
    PageInventors* inventors;
    PageObjects* objects;
};

} // namespace quillford
