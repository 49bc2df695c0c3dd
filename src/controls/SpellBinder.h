#pragma once

#include "controls/SpellMarks.h"
#include "controls/Spelling.h"

#include <QPointer>

namespace quillford {

/// The one spell checker of the program. It is bound to one field at a time, and that field alone
/// shows its unknown words.
class SpellBinder {
public:
    /// `dictionary` is the path of the dictionary; where it is missing no word is marked. `engine`
    /// outlives the binder, and the binder unbinds its field when it goes.
    SpellBinder(SpellEngine& engine, QString dictionary, Spelling::Names names);
    ~SpellBinder();

    SpellBinder(const SpellBinder&) = delete;
    SpellBinder& operator=(const SpellBinder&) = delete;
    SpellBinder(SpellBinder&&) = delete;
    SpellBinder& operator=(SpellBinder&&) = delete;

    /// Takes the marks from the field that was bound and gives them to this one. Made to be called
    /// at every key press: the dictionary is read at the first call alone. A control that can show
    /// no marks takes over all the same, and shows none.
    void SpellAttach(QWidget& field);

private:
    void release();

    SpellEngine& engine_;
    QString dictionary_;
    Spelling spelling_;
    QPointer<SpellMarks> bound_;
};

} // namespace quillford
