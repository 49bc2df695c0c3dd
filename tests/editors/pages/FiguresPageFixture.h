#pragma once

#include "editors/pages/PagesFixture.h"
#include "platform/linux/QtPictureReader.h"

#include <QTemporaryDir>

namespace quillford {

/// The page of Section 4. Pictures are real files, decoded by the real reader.
class FiguresPageFixture : public PagesFixture {
protected:
    FiguresPageFixture();

    static constexpr int FiguresTab = 3;

    using PagesFixture::control;
    using PagesFixture::label;
    using PagesFixture::tabTo;

    template <typename Control = QWidget>
    [[nodiscard]] Control& control(QStringView name, int figure) const {
        return control<Control>(controlName(name, figure));
    }

    [[nodiscard]] bool exists(QStringView name, int figure) const {
        return PagesFixture::exists(controlName(name, figure));
    }

    [[nodiscard]] QString label(QStringView name, int figure) const {
        return label(controlName(name, figure));
    }

    void tabTo(QStringView name, int figure) { tabTo(controlName(name, figure)); }

    [[nodiscard]] QScrollBar& vscroll() const { return PagesFixture::vscroll(2); }

    /// Chooses the number of figures from its list.
    void clickCount(int count);
    void chooseCount(int count);

    /// Clicks the button, and chooses this file in the dialog.
    void browse(const QString& path, int figure = 0);
    void remove(int figure);

    /// A picture of this size in the test's folder, black with a white lower half.
    [[nodiscard]] QString picture(const QString& name, QSize pixels,
                                  const char* format = "PNG") const;
    [[nodiscard]] QString file(const QString& name, const QByteArray& bytes) const;

    /// What stands in the preview's square, as it is painted; no size when nothing does.
    [[nodiscard]] QImage preview(int figure = 0) const;
    [[nodiscard]] QRect previewPlace(int figure = 0) const;

    [[nodiscard]] QWidget& container() { return PagesFixture::container(FiguresTab); }

    QTemporaryDir folder;
    ProjectState& state = project.state;

private:
    QtPictureReader pictures_;

protected:
    PageFigures& page; ///< owned by its panel
};

} // namespace quillford
