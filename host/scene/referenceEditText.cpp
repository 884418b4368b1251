// The edits of references as text; see referenceEditText.h.
#include "referenceEditText.h"

#include "words.h"

#include "mel/arguments.h"
#include "mel/parser.h"

#include <algorithm>
#include <cstdlib>
#include <map>

namespace tvxhost::scene {

using engine::ReferenceEdit;

namespace {

constexpr const char* kPlaceholders = ".placeHolderList[";

/// Words of an edit of links that precede its plugs.
constexpr std::size_t kRelationshipNames = 2;

/// Words that follow a kind of edit.
int wordCount(int kind)
{
    switch (kind) {
    case ReferenceEdit::addAttribute:
        return 4;
    case ReferenceEdit::parent:
    case ReferenceEdit::setAttribute:
    case ReferenceEdit::disconnect:
        return 3;
    default:
        return 2;
    }
}

int connectionWordCount(int ends)
{
    return ends == ReferenceEdit::both ? 6 : 4;
}

ReferenceEdit readRelationship(Words& words)
{
    ReferenceEdit edit;
    edit.kind = kRelationshipEdit;
    for (std::size_t i = 0; i < kRelationshipNames; ++i)
        edit.words.push_back(words.text());
    for (int left = words.integer(); left > 0 && !words.failed(); --left)
        edit.words.push_back(words.text());
    edit.words.push_back(std::to_string(words.integer()));
    return edit;
}

ReferenceEdit readOne(Words& words)
{
    ReferenceEdit edit;
    edit.kind = words.integer();
    if (edit.kind == kRelationshipEdit)
        return readRelationship(words);
    int count = wordCount(edit.kind);
    if (edit.kind == ReferenceEdit::connect) {
        edit.ends = words.integer();
        count = connectionWordCount(edit.ends);
    }
    for (; count > 0; --count)
        edit.words.push_back(words.text());
    return edit;
}

/// Of two groups of the same reference node the first holds what failed.
void markFailed(EditList& edits, const std::map<std::string, int>& groups, const std::vector<int>& groupOf)
{
    for (std::size_t i = 0; i < edits.size(); ++i)
        edits[i].hasFailed = groupOf[i] == 1 && groups.at(edits[i].owner) > 1;
}

/// The words of an edit as they stand in a file.
std::vector<std::string> fileWords(const ReferenceEdit& edit)
{
    std::vector<std::string> words;
    for (const std::string& word : edit.words)
        words.push_back(mel::quoted(word));
    if (edit.kind == kRelationshipEdit) {
        const std::size_t plugs = edit.words.size() - kRelationshipNames - 1;
        words.back() = edit.words.back();
        words.insert(words.begin() + kRelationshipNames, std::to_string(plugs));
    }
    return words;
}

std::string editText(const ReferenceEdit& edit)
{
    constexpr std::size_t kLongLine = 80;
    std::string text = "\n\t\t" + std::to_string(edit.kind);
    if (edit.kind == ReferenceEdit::connect)
        text += ' ' + std::to_string(edit.ends);
    std::size_t lineStart = 0;
    for (const std::string& word : fileWords(edit)) {
        text += ' ';
        if (text.size() - lineStart > kLongLine) {
            lineStart = text.size();
            text += "\n\t\t";
        }
        text += word;
    }
    return text;
}

std::string groupText(const std::string& owner, const EditList& edits, bool hasFailed)
{
    std::size_t count = 0;
    std::string text;
    for (const OwnedEdit& each : edits) {
        if (each.owner != owner || each.hasFailed != hasFailed)
            continue;
        ++count;
        text += editText(each.edit);
    }
    // That nothing failed is told, that nothing succeeded is not.
    if (count == 0 && !hasFailed)
        return {};
    return "\n\t\t" + mel::quoted(owner) + ' ' + std::to_string(count) + text;
}

/// The two ends of a connection: plugs, as far as they are known, else placeholders.
std::pair<std::string, std::string> connectionEnds(const OwnedEdit& each)
{
    const std::vector<std::string>& words = each.edit.words;
    if (each.edit.ends == ReferenceEdit::both)
        return {words[1], words[2]};
    const std::string& other = each.otherEnd.empty() ? words[2] : each.otherEnd;
    if (each.edit.ends == ReferenceEdit::source)
        return {words[1], other};
    return {other, words[1]};
}

std::string withFlags(const std::string& command, const std::string& flags)
{
    return flags.empty() ? command : command + ' ' + flags;
}

std::string trimmed(const std::string& text)
{
    const std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(begin, text.find_last_not_of(' ') + 1 - begin);
}

std::string parentText(const std::vector<std::string>& words)
{
    const std::string command = withFlags("parent", trimmed(words[2]));
    return words[1].empty() ? command + " -w " + words[0] : command + ' ' + words[0] + ' ' + words[1];
}

std::string relationshipText(const std::vector<std::string>& words)
{
    std::string text = "relationship";
    for (std::size_t i = 0; i + 1 < words.size(); ++i)
        text += ' ' + mel::quoted(words[i]);
    return text;
}

} // namespace

std::optional<EditList> readEdits(const std::string& text)
{
    const std::string statement = "edits " + text + ";";
    mel::StatementReader reader(statement, "");
    try {
        if (!reader.next() || !reader.plain())
            return std::nullopt;
    } catch (const mel::SyntaxError&) {
        return std::nullopt;
    }
    const mel::ArgumentList& arguments = reader.plain()->arguments;
    Words words(arguments.begin(), arguments.end());
    words.text();
    EditList edits;
    std::map<std::string, int> groups;
    std::vector<int> groupOf;
    while (!words.atEnd() && !words.failed()) {
        const std::string owner = words.text();
        const int group = ++groups[owner];
        for (int left = words.integer(); left > 0 && !words.failed(); --left) {
            edits.push_back({owner, readOne(words), false, {}});
            groupOf.push_back(group);
        }
    }
    if (words.failed())
        return std::nullopt;
    markFailed(edits, groups, groupOf);
    return edits;
}

std::string editsText(const std::string& referenceNode, const EditList& edits)
{
    std::vector<std::string> owners = {referenceNode};
    for (const OwnedEdit& each : edits)
        if (std::find(owners.begin(), owners.end(), each.owner) == owners.end())
            owners.push_back(each.owner);
    std::string text = " \n\t\t" + mel::quoted(referenceNode);
    for (const bool hasFailed : {true, false})
        for (const std::string& owner : owners)
            text += groupText(owner, edits, hasFailed);
    return text;
}

std::string commandOf(const ReferenceEdit& edit)
{
    switch (edit.kind) {
    case ReferenceEdit::parent:
        return "parent";
    case ReferenceEdit::addAttribute:
        return "addAttr";
    case ReferenceEdit::setAttribute:
        return "setAttr";
    case ReferenceEdit::disconnect:
        return "disconnectAttr";
    case ReferenceEdit::deleteAttribute:
        return "deleteAttr";
    case ReferenceEdit::connect:
        return "connectAttr";
    case kRelationshipEdit:
        return "relationship";
    case ReferenceEdit::lock:
        return "lock";
    case ReferenceEdit::unlock:
        return "unlock";
    default:
        return std::to_string(edit.kind);
    }
}

std::string melOf(const OwnedEdit& each)
{
    const std::vector<std::string>& words = each.edit.words;
    const std::string command = commandOf(each.edit);
    switch (each.edit.kind) {
    case ReferenceEdit::parent:
        return parentText(words);
    case ReferenceEdit::addAttribute:
        return command + " -ln " + mel::quoted(words[1]) + " -sn " + mel::quoted(words[2]) + words[3] + ' ' +
               words[0];
    case ReferenceEdit::setAttribute:
        return command + ' ' + words[0] + '.' + words[1] + words[2];
    case ReferenceEdit::disconnect:
        return withFlags(command, words[2]) + ' ' + words[0] + ' ' + words[1];
    case ReferenceEdit::connect: {
        const auto [source, destination] = connectionEnds(each);
        return command + ' ' + source + ' ' + destination;
    }
    case kRelationshipEdit:
        return relationshipText(words);
    default:
        return command + ' ' + words[0] + '.' + words[1];
    }
}

std::vector<std::string> targetsOf(const OwnedEdit& each)
{
    const std::vector<std::string>& words = each.edit.words;
    switch (each.edit.kind) {
    case ReferenceEdit::parent:
        return words[1].empty() ? std::vector<std::string>{words[0]}
                                : std::vector<std::string>{words[0], words[1]};
    case ReferenceEdit::disconnect:
        return {words[0], words[1]};
    case ReferenceEdit::connect: {
        const auto [source, destination] = connectionEnds(each);
        return {source, destination};
    }
    case kRelationshipEdit:
        return {words.begin() + kRelationshipNames, words.end() - 1};
    default:
        return {words[0] + '.' + words[1]};
    }
}

void renameIn(OwnedEdit& each, const std::function<std::string(const std::string&)>& newName)
{
    std::vector<std::string>& words = each.edit.words;
    // Which words are names: from the first one up to the one behind the last.
    std::size_t begin = 0;
    std::size_t end = 1;
    if (each.edit.kind == ReferenceEdit::parent || each.edit.kind == ReferenceEdit::disconnect) {
        end = 2;
    } else if (each.edit.kind == ReferenceEdit::connect) {
        begin = 1;
        end = words.size() - 1;
    } else if (each.edit.kind == kRelationshipEdit) {
        begin = kRelationshipNames;
        end = words.size() - 1;
    }
    for (std::size_t i = begin; i < end; ++i)
        words[i] = newName(words[i]);
    each.otherEnd = newName(each.otherEnd);
}

std::vector<std::size_t> placeholdersOf(const ReferenceEdit& edit)
{
    if (edit.kind != ReferenceEdit::connect)
        return {};
    return edit.ends == ReferenceEdit::both ? std::vector<std::size_t>{3, 4} : std::vector<std::size_t>{2};
}

int placeholderIndex(const std::string& word)
{
    const std::size_t at = word.find(kPlaceholders);
    return at == std::string::npos ? -1
                                   : static_cast<int>(std::strtol(
                                         word.c_str() + at + std::string(kPlaceholders).size(), nullptr, 10));
}

std::string placeholderName(const std::string& referenceNode, std::size_t index)
{
    return referenceNode + kPlaceholders + std::to_string(index) + "]";
}

} // namespace tvxhost::scene
