// What was read of a settings file, for as long as nobody asks for the toolkit's document.
#include "config/document.h"

#include "config/match.h"
#include "config/tree.h"

#include <utility>

namespace libconfig {

Document::Document() = default;

Document::~Document() = default;

void Document::clear()
{
    made.reset();
    unmade.clear();
    isSet = true;
}

void Document::add(const QString &fileName, std::unique_ptr<Tree> read)
{
    isSet = true;
    if (made)
        made->add(fileName, *read);
    else if (unmade.empty() || !read->isEmpty())
        unmade.push_back({fileName, std::move(read)});
}

const Tree *Document::tree() const { return unmade.empty() ? nullptr : unmade.front().tree.get(); }

QString Document::lookup(const QString &key) const
{
    if (made)
        return made->lookup(key);
    for (const Read &read : unmade) {
        if (!read.tree->isEmpty())
            return match(read.tree->top(), key);
    }
    return {};
}

} // namespace libconfig
