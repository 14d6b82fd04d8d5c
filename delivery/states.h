// The states of a document on its way to a printer, and which may follow which.
#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <iterator>
#include <optional>

namespace korvel::delivery {

using namespace Qt::Literals::StringLiterals;

/// What became of a document.
enum class State {
    Accepted,   // its id, job, settings and stream are in the journal, on disk
    Refused,    // the job or the stream is wrong: no byte was sent
    NotSent,    // the printer could not be reached: no byte left
    Sending,    // on disk before the first byte leaves
    Sent,       // the printer's side took all bytes
    InDoubt,    // at least one byte may have left, and the end is not known
    Printed,    // a person saw it on paper
    NotPrinted, // a person saw that it is not on paper
};

/// A set of states, a bit each.
constexpr unsigned setOf() { return 0; }
template<typename... States>
constexpr unsigned setOf(State first, States... others)
{
    return 1U << unsigned(first) | setOf(others...);
}

/// A row of the table of states.
struct StateInfo
{
    State state;
    QLatin1StringView name; // as the journal keeps it and the programs spell it
    unsigned next;          // the states that may follow
};

inline constexpr StateInfo stateTable[] = {
    {State::Accepted, "accepted"_L1, setOf(State::Refused, State::NotSent, State::Sending)},
    {State::Refused, "refused"_L1, setOf(State::Accepted)},
    {State::NotSent, "not-sent"_L1, setOf(State::NotSent, State::Sending)},
    {State::Sending, "sending"_L1, setOf(State::Sent, State::InDoubt)},
    {State::Sent, "sent"_L1, setOf()},
    {State::InDoubt, "in-doubt"_L1, setOf(State::Printed, State::NotPrinted)},
    {State::Printed, "printed"_L1, setOf()},
    {State::NotPrinted, "not-printed"_L1, setOf(State::NotSent, State::Sending)},
};

constexpr const StateInfo &infoOf(State state) { return stateTable[unsigned(state)]; }

/// Whether a document in one state may come into another.
constexpr bool mayFollow(State before, State after)
{
    return (infoOf(before).next & setOf(after)) != 0;
}

/// Whether no byte of a document is known or suspected to have left.
constexpr bool nothingLeft(State state)
{
    return (setOf(State::Accepted, State::Refused, State::NotSent, State::NotPrinted)
            & setOf(state))
           != 0;
}

/// The state of that name; nothing when there is none.
inline std::optional<State> stateNamed(QStringView name)
{
    for (const StateInfo &row : stateTable) {
        if (row.name == name)
            return row.state;
    }
    return {};
}

} // namespace korvel::delivery
