#include "BareWidgets.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace quillford {

BareWidgets::BareWidgets(const QList<QWidget*>& panels) {
    for (qsizetype i = 1; i < panels.size(); ++i)
        note(*panels[i], -1);
}

void BareWidgets::note(const QWidget& widget, qsizetype parent) {
    Note note{Kind::Widget, parent, widget.geometry(), {}, {}, {}, false, widget.isHidden()};
    if (auto* label = qobject_cast<const QLabel*>(&widget)) {
        note.kind = Kind::Label;
        note.text = label->text();
        note.picture = label->pixmap(Qt::ReturnByValue);
    } else if (qobject_cast<const QLineEdit*>(&widget)) {
        note.kind = Kind::Line;
    } else if (qobject_cast<const QPlainTextEdit*>(&widget)) {
        note.kind = Kind::Text;
    } else if (auto* list = qobject_cast<const QComboBox*>(&widget)) {
        note.kind = Kind::List;
        note.takesTyping = list->isEditable();
        for (int row = 0; row < list->count(); ++row)
            note.rows.append(list->itemText(row));
    }
    const qsizetype self = notes_.size();
    notes_.append(note);
    // What the toolkit puts into its own widgets comes by itself.
    if (note.kind == Kind::Widget)
        for (const QObject* child : widget.children())
            if (auto* inner = qobject_cast<const QWidget*>(child))
                this->note(*inner, self);
}

QWidget* BareWidgets::makeOne(const Note& note, QWidget* parent) {
    switch (note.kind) {
    case Kind::Label: {
        auto* label = new QLabel(note.text, parent);
        if (!note.picture.isNull())
            label->setPixmap(note.picture);
        return label;
    }
    case Kind::Line:
        return new QLineEdit(parent);
    case Kind::Text:
        return new QPlainTextEdit(parent);
    case Kind::List: {
        auto* list = new QComboBox(parent);
        list->setEditable(note.takesTyping);
        list->addItems(note.rows);
        return list;
    }
    case Kind::Widget:
        break;
    }
    return new QWidget(parent);
}

void BareWidgets::make(QWidget& view) {
    QList<QWidget*> made;
    for (const Note& note : notes_) {
        QWidget* widget = makeOne(note, note.parent < 0 ? &view : made[note.parent]);
        widget->setGeometry(note.place);
        if (note.hidden)
            widget->hide();
        if (note.parent < 0)
            panels_.append(widget);
        made.append(widget);
    }
    for (QWidget* panel : panels_)
        panel->show();
}

void BareWidgets::drop() {
    while (!panels_.isEmpty())
        delete panels_.takeLast();
}

} // namespace quillford
