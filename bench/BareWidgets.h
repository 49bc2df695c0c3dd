#pragma once

#include <QWidget>

#include <memory>

namespace quillford {

/// A panel with as many children of the same classes in the same places as `original`, with the
/// same captions, pictures and rows of lists, as the toolkit makes them: no names, no bindings.
/// Hidden, and a child of `parent`. Throws an `Error` for a class that no panel has.
[[nodiscard]] std::unique_ptr<QWidget> bareCopy(const QWidget& original, QWidget& parent);

} // namespace quillford
