// What tests of scene files share: small texts in the real format, read and written in memory.
#pragma once

#include "../support/savedText.h"

#include "scene/reader.h"
#include "scene/writer.h"

#include "engine/scene.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tvxhost::scene {

class SceneFixture : public testing::Test
{
protected:
    static constexpr const char* kHeader = "//Maya ASCII 2016 scene\n";

    /// Reads a file that consists of the header line and `body`, so that line 2 is the body's first.
    ReadResult read(const std::string& body, const ReadOptions& options = {})
    {
        scene.scriptEditor().clearHistory();
        return openSceneText(scene, kHeader + body, "/scenes/test.ma", options);
    }

    engine::Node& node(const std::string& name)
    {
        const auto found = scene.findNode(name);
        EXPECT_TRUE(found) << found.outcome.text;
        return *found.value;
    }

    std::vector<double> numbers(const std::string& plug)
    {
        const auto found = scene.findPlug(plug);
        EXPECT_TRUE(found) << found.outcome.text;
        const auto values = engine::readNumbers(found.value);
        EXPECT_TRUE(values) << values.outcome.text;
        return values.value;
    }

    std::string string(const std::string& plug)
    {
        const auto found = scene.findPlug(plug);
        EXPECT_TRUE(found) << found.outcome.text;
        return engine::readString(found.value).value;
    }

    std::string source(const std::string& plug)
    {
        const auto found = scene.findPlug(plug);
        EXPECT_TRUE(found) << found.outcome.text;
        const engine::Plug fed = engine::sourceOf(found.value);
        return fed.isNull() ? std::string() : fed.name();
    }

    /// Errors and warnings as a batch session shows them.
    std::vector<std::string> messages() const
    {
        std::vector<std::string> lines;
        for (const engine::Message& message : scene.scriptEditor().history())
            if (message.kind == engine::MessageKind::error || message.kind == engine::MessageKind::warning)
                lines.push_back(engine::ScriptEditor::framed(message, engine::ScriptEditor::Frame::batch));
        return lines;
    }

    std::string saved() { return test::savedText(scene); }

    /// The part of the saved text from the line that begins with `first` up to the next statement that is
    /// not indented.
    std::string savedSection(const std::string& first)
    {
        const std::string text = saved();
        const std::size_t begin = text.find("\n" + first);
        if (begin == std::string::npos)
            return "no line begins with: " + first;
        std::size_t end = text.find('\n', begin + 1) + 1;
        while (end < text.size() && text[end] == '\t')
            end = text.find('\n', end) + 1;
        return text.substr(begin + 1, end - begin - 1);
    }

    /// The statements of the saved text that begin with a word, one per line.
    std::string savedStatements(const std::string& word)
    {
        std::string found;
        const std::string text = saved();
        for (std::size_t begin = 0; begin < text.size();) {
            const std::size_t end = text.find('\n', begin);
            if (text.compare(begin, word.size(), word) == 0)
                found += text.substr(begin, end - begin + 1);
            begin = end + 1;
        }
        return found;
    }

    static constexpr const char* kUid = "\trename -uid \"AAAAAAAA-0000-0000-0000-000000000001\";\n";

    /// Reads a node, given by the words behind `createNode` and its lines, and expects it to be saved the
    /// same, letter by letter.
    void expectKept(const std::string& words, const std::string& lines)
    {
        const std::string text = "createNode " + words + ";\n" + kUid + lines;
        read("currentUnit -l centimeter -a degree -t film;\ncreateNode transform -n \"polySurface1\";\n" +
             text);
        EXPECT_EQ(messages(), std::vector<std::string>());
        EXPECT_EQ(savedSection("createNode " + words), text);
    }

    mutable engine::Scene scene;
};

} // namespace tvxhost::scene
