// The renderer as a child process: a job and settings in, a command stream out.
#pragma once

#include <QObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>

#include <optional>

namespace korvel::settings {

/**
 * Runs korvel-print on a job, in a home folder of its own, without waiting for it. A newer request
 * replaces the one that runs.
 */
class Rendering : public QObject
{
    Q_OBJECT

public:
    /// @param program path of the renderer
    explicit Rendering(QString program, QObject *parent = nullptr);
    ~Rendering() override;

    /// The renderer beside this program, in its build folder, or in the search path.
    static QString findRenderer();

    /// Renders a job with a settings file; rendered() or failed() follows, unless the next request
    /// comes first.
    void render(const QByteArray &job, const QByteArray &settings);

signals:
    /// @param messages what the renderer said on standard output
    void rendered(const QByteArray &stream, const QString &messages);

    /// @param reason one line
    void failed(const QString &reason);

private:
    struct Request
    {
        QByteArray job;
        QByteArray settings;
    };

    void start(const Request &request);
    void finish(int status, QProcess::ExitStatus exit);
    void giveUp(const QString &reason);
    [[nodiscard]] bool write(const QString &name, const QByteArray &bytes) const;

    QString renderer;
    QTemporaryDir home;
    QProcess process;
    QTimer patience; // a renderer that hangs is stopped
    std::optional<Request> next;
};

} // namespace korvel::settings
