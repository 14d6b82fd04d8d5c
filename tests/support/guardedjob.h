// A job read as the renderer reads it, behind its guard.
#pragma once

#include "app/jobguard.h"

#include <QBuffer>
#include <QXmlDefaultHandler>

/// Notes whether a job was read to its end, and lets every element pass.
class JobListener : public QXmlDefaultHandler
{
public:
    bool ended = false;

    bool endDocument() override
    {
        ended = true;
        return true;
    }
};

/// Whether the renderer reads a job to its end, methods aside.
inline bool isReadToItsEnd(QByteArray bytes)
{
    QBuffer job(&bytes);
    JobListener listener;
    korvel::app::JobGuard guard(listener);
    guard.parse(job);
    return listener.ended;
}
