#pragma once

#include "controls/myImageButton.h"
#include "editors/binding/BoundFields.h"

#include <QLabel>
#include <QWidget>

namespace quillford {

/// The panel of one figure in Section 4, `picFigures(i)`: its file, its view, its description and
/// the preview of its picture.
class FigurePanel final : public QWidget {
    Q_OBJECT

public:
    /// Binds the fields of the figure with this index, from 0, which exist already. `view` owns the
    /// panel.
    FigurePanel(int figure, QWidget& view, BoundFields& bound);

    /// Writes the sentence's head, and puts the view behind it.
    void showSentence(const QString& sentence);

    /// Shows a picture over this place of the preview's square; a null one takes it away.
    void showPicture(const QImage& picture, const QRect& place);

    void showNoFigure(bool on) { noFigure_->setVisible(on); }

Q_SIGNALS:
    void imgBrowse_Click();
    void imgRemove_Click();

    /// The Tab key has come to `imgBrowse(i)`.
    void browseReachedByTab(const QWidget& button);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* sentence_;
    QWidget* type_;
    QWidget* typeStar_;
    QWidget* imgBrowse_;
    QLabel* picture_;
    QWidget* noFigure_;
};

} // namespace quillford
