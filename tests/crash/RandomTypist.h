#pragma once

#include "core/fields/FieldTable.h"
#include "crash/SaveJournal.h"
#include "support/ModalUser.h"
#include "typed/TypingUser.h"

#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <random>

namespace quillford {

/// A user who never stops: types, a few characters at a time, into one field after the other, walks
/// through the sections, chooses counts, attaches pictures, and saves now and then, all at random.
/// The same seed makes the same choices.
class RandomTypist final : public QObject {
public:
    /// Works on the open project of the user's form from now on. Owns neither user nor journal;
    /// both outlive it.
    RandomTypist(TypingUser& user, SaveJournal& journal, quint32 seed, QStringList pictures);

private:
    void passMessages(const QString& title, const QString& button);

    void act();
    void typeOn();
    void choose();
    void goToField();
    void goToSection();
    void chooseCount();
    void attachPicture();
    void saveByKeys();
    void saveAs();

    [[nodiscard]] int below(int end);
    [[nodiscard]] int numberIn(FieldId count) const;
    [[nodiscard]] QStringList fieldsOfSection() const;
    [[nodiscard]] QString text();
    void paste();

    TypingUser& user_;
    SaveJournal& journal_;
    QStringList pictures_;
    ModalUser windows_;
    std::mt19937 chance_;
    QTimer timer_;
    QPointer<QWidget> field_;
    QString toType_;
    int tab_ = 0;
    int copies_ = 0;
    bool acting_ = false;
};

} // namespace quillford
