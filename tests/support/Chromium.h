#pragma once

#include <QByteArray>
#include <QImage>
#include <QJsonObject>
#include <QProcess>
#include <QString>

namespace quillford {

/// A running chromium with one page, told what to do through a pipe. It has a profile of its own,
/// finds no host, and ends with this object. Every call raises `Error` when the browser does not
/// answer as it should.
class Chromium {
public:
    [[nodiscard]] static bool isInstalled();

    /// Starts the browser with a window of this many pixels. Everything is written below `folder`,
    /// which outlives the browser.
    Chromium(const QString& folder, int width, int height);
    ~Chromium();
    Q_DISABLE_COPY_MOVE(Chromium)

    /// Loads the file, and returns when it is loaded with its pictures and laid out whole; gives
    /// the height of the page in pixels.
    int load(const QString& path);

    /// What stands in the window, made this high, when the page that was loaded is scrolled by
    /// `top`, 1 pixel for 1 of the page. Up to 16000 pixels high.
    [[nodiscard]] QImage picture(int top, int height);

    /// The text of the page that was loaded, as it is seen.
    [[nodiscard]] QString text();

    /// Prints the page that was loaded; gives the PDF file's bytes.
    [[nodiscard]] QByteArray printed();

private:
    void start(const QString& folder, int width, int height);
    void openPage();

    /// Sends a command and waits for its answer.
    QJsonObject call(const QString& method, const QJsonObject& parameters = {});
    void send(const QJsonObject& message) const;
    QJsonObject received(); ///< waits for the next message

    [[nodiscard]] QJsonValue evaluated(const QString& script);

    int width_;
    QProcess process_;
    int commands_ = -1; ///< what is written here comes to the browser
    int answers_ = -1;  ///< what the browser says
    QByteArray unread_;
    QString session_;
    int lastId_ = 0;
    bool isLoaded_ = false;
};

} // namespace quillford
