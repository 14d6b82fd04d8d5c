// Signals that ask the process to end, put off until what it holds is tidied up.
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace korvel::shared {

/**
 * As long as it lives, SIGHUP, SIGINT, SIGQUIT and SIGTERM do not end the process, but are told to
 * its event loop. Those that are ignored stay so. There is one at a time.
 */
class StopSignals : public QObject
{
    Q_OBJECT

public:
    StopSignals();
    ~StopSignals() override;

    /// Ends the process by the signal that came, as if nobody had waited; nothing when none did.
    void obey();

signals:
    void stopped();

private:
    std::unique_ptr<QSocketNotifier> notifier;
};

} // namespace korvel::shared
