// Devices, documents and refusals of a queue.
#include "companions/queue/document.h"

#include "companions/paper/decoder.h"

using namespace Qt::Literals::StringLiterals;
using korvel::delivery::Contents;
using korvel::delivery::Journal;
using korvel::delivery::State;

namespace korvel::queue {

namespace {

constexpr auto scheme = "korvel:"_L1;

/// The same device as korvel-deliver names it.
QString nameOf(const QString &place)
{
    if (place.startsWith("//"_L1) && !place.startsWith("///"_L1)) {
        QString host = place;
        while (host.endsWith(u'/')) // as forms of web pages may leave it
            host.chop(1);
        return u"tcp:"_s + host;
    }
    const QString path = place.startsWith("///"_L1) ? place.sliced(2) : place;
    const bool isLine = path.startsWith("/dev/tty"_L1) || path.contains("?baud="_L1);
    return isLine ? u"serial:"_s + path : path;
}

/// How many commands of a stream are of some kind.
template<typename Is>
int commandsIn(const QByteArray &stream, const Is &is)
{
    int count = 0;
    preview::Decoder decoder(stream);
    while (const auto command = decoder.next())
        count += is(*command) ? 1 : 0;
    return count;
}

} // namespace

std::optional<delivery::DeviceName> deviceOf(const QString &uri, QString &error)
{
    const QString place = uri.startsWith(scheme) ? uri.sliced(scheme.size()) : QString();
    auto device = delivery::deviceNamed(nameOf(place), error);
    if (place.startsWith(u'/') && device)
        return device;
    error = uri
            + u" is no device: write korvel://HOST, korvel:/dev/usb/lp0 or "
              "korvel:/dev/ttyS0?baud=9600"_s
            + (place.startsWith(u'/') ? u" ("_s + error + u')' : QString());
    return {};
}

bool isFiscal(const QByteArray &stream)
{
    using preview::Command;
    return commandsIn(stream,
                      [](const Command &command) {
                          return command.kind == Command::Kind::SaleRow
                                 || command.kind == Command::Kind::Deduction
                                 || (command.kind == Command::Kind::SectionOpened
                                     && command.section == preview::Section::Fiscal);
                      })
           > 0;
}

int documentsIn(const QByteArray &stream)
{
    return commandsIn(stream, [](const preview::Command &command) {
        return command.kind == preview::Command::Kind::SectionOpened;
    });
}

QString misuseOf(const Request &request, const QByteArray &stream)
{
    if (request.copies > 1 && isFiscal(stream))
        return u"a fiscal document has no copies: print it once"_s;
    return {};
}

std::optional<Contents> takenIn(Journal &journal, const QString &id, const Contents &given)
{
    const auto document = journal.find(id);
    if (!document || document->state == State::Refused)
        return {};
    Contents stored = journal.contentsOf(*document);
    const bool isSame =
        given.job.isEmpty() ? stored.rendered == given.rendered : stored.job == given.job;
    return isSame ? std::optional(stored) : std::nullopt;
}

void refuse(Journal &journal, const Request &request, const Contents &contents,
            const QString &reason)
{
    QString error;
    const auto device = deviceOf(request.device, error);
    const QString name = device ? device->text : request.device;
    const auto document = journal.find(request.id);
    if (!document || document->state == State::Refused)
        journal.refuse(request.id, contents, name, request.origin(), reason);
    else if (document->origin == request.origin())
        journal.change(request.id, State::Refused, name, reason);
}

QString refusal(const QString &reason) { return u"refused, nothing was printed: "_s + reason; }

} // namespace korvel::queue
