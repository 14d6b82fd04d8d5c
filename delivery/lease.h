// The lease of a device: who holds it sends to it, and nobody else.
#pragma once

#include "delivery/descriptor.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <optional>

namespace korvel::delivery {

/**
 * An advisory lock on a file that is named by the device, one for all users and journals. The
 * system drops it when its holder dies; children do not inherit it. The file stays.
 */
class Lease
{
public:
    /// Where leases are: in the first of these folders whose own folder is there and may be
    /// written. It is open to all users and sticky.
    static QByteArrayList folders();

    /**
     * Takes the lease of that name.
     *
     * @param error why it cannot be had: somebody has it, or there is no place for it; one line
     */
    static std::optional<Lease> take(const QByteArray &name, QString &error,
                                     const QByteArrayList &folders = Lease::folders());

    /// Whether somebody, this process included, holds the lease of that name; nobody does of none.
    /// Takes nothing, makes nothing.
    static bool isHeld(const QByteArray &name, const QByteArrayList &folders = Lease::folders());

private:
    explicit Lease(Descriptor lockedFile)
        : file(std::move(lockedFile))
    {
    }

    Descriptor file;
};

} // namespace korvel::delivery
