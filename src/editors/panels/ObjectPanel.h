#pragma once

#include "editors/binding/BoundFields.h"
#include "editors/rules/ObjectSentences.h"

#include <QWidget>

#include <memory>

namespace quillford {

namespace Ui {
class ObjectPanel;
}

/// The panel of one object of the invention in Section 3, `frmObjectsNum(i)`: a sentence to
/// complete, and a box for the completed one. It is as high as the sentence above the box needs.
class ObjectPanel final : public QWidget {
    Q_OBJECT

public:
    /// Binds the field of the object with this index, from 0, which exists already. `view` owns the
    /// panel. There is no sentence until `showSentence`.
    ObjectPanel(int object, QWidget& view, BoundFields& bound);

    ~ObjectPanel() override;

    ObjectPanel(const ObjectPanel&) = delete;
    ObjectPanel& operator=(const ObjectPanel&) = delete;

    /// Writes the sentence, and takes the height that it needs.
    void showSentence(const ObjectCaptions& captions);

private:
    std::unique_ptr<Ui::ObjectPanel> parts_;
};

} // namespace quillford
