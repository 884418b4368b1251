// The files that reference nodes name; see referenceFiles.h.
#include "referenceFiles.h"

#include "mel/parser.h"

#include <algorithm>
#include <vector>

namespace tvxhost::scene {

using engine::Outcome;
using engine::Plug;
using engine::Reference;
using engine::ReferenceEdit;
using engine::Scene;

namespace {

std::vector<std::string> stringsOf(const Plug& array)
{
    std::vector<std::string> strings;
    for (const int index : engine::existingElements(array))
        strings.push_back(engine::readString(array.element(index)).value);
    return strings;
}

/// The string in ` -type "string" "text"`; empty when there is none.
std::string stringIn(const std::string& words)
{
    const std::string statement = "value" + words + ";";
    mel::StatementReader reader(statement, "");
    try {
        if (!reader.next() || !reader.plain() || reader.plain()->arguments.empty())
            return {};
    } catch (const mel::SyntaxError&) {
        return {};
    }
    const mel::ArgumentList& arguments = reader.plain()->arguments;
    return std::string(arguments[arguments.size() - 1].text);
}

bool namesFile(const ReferenceEdit& edit)
{
    return edit.kind == ReferenceEdit::setAttribute &&
           (edit.words[1] == "fileNames[0]" || edit.words[1] == "fn[0]");
}

} // namespace

Outcome nameFile(Scene& scene, Reference& reference, const std::string& file)
{
    const auto array = scene.findPlug(":" + reference.nodeName + ".fileNames");
    if (!array)
        return array.outcome;
    std::vector<std::string> files = stringsOf(array.value);
    if (files.empty())
        files.push_back(reference.file);
    files.erase(std::remove(files.begin(), files.end(), file), files.end());
    files.insert(files.begin(), file);
    for (std::size_t i = 0; i < files.size(); ++i)
        if (Outcome written = engine::writeString(array.value.element(static_cast<int>(i)), files[i]);
            !written)
            return written;
    reference.file = file;
    reference.path = file;
    return {};
}

void noteFiles(const Scene& scene, const EditList& edits, ReferenceStates& states)
{
    const std::string& current = scene.currentNamespace();
    const std::string space = current == ":" ? std::string() : current.substr(1) + ":";
    for (const OwnedEdit& each : edits) {
        if (!namesFile(each.edit))
            continue;
        std::string& file = states[space + each.edit.words[0]].file;
        if (file.empty())
            file = stringIn(each.edit.words[2]);
    }
}

} // namespace tvxhost::scene
