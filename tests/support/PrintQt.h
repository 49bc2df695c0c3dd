#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringView>

#include <ostream>

// How the toolkit's texts look in a failed test.

inline void PrintTo(QStringView text, std::ostream* out) {
    *out << '"' << text.toUtf8().toStdString() << '"';
}

inline void PrintTo(const QString& text, std::ostream* out) {
    PrintTo(QStringView(text), out);
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
    *out << '"' << bytes.toStdString() << '"';
}

inline void PrintTo(const QSize& size, std::ostream* out) {
    *out << size.width() << " by " << size.height();
}
