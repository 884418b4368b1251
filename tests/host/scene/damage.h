// Damaged scene files: cut short and with changed bytes, the same ones in every run, and what must hold of
// reading them.
#pragma once

#include "../support/savedText.h"

#include "scene/reader.h"

#include "engine/scene.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace tvxhost::scene::damage {

// With a sanitizer each reading takes many times as long: a quarter of them is read there.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int kTimes = 50;
#else
constexpr int kTimes = 200;
#endif

inline std::size_t lineCount(const std::string& text)
{
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
}

/// Every complaint but the closing one says where in the file it is.
inline void expectPlaces(engine::Scene& scene, const std::string& text, const std::string& name)
{
    const auto& history = scene.scriptEditor().history();
    for (const engine::Message& message : history) {
        if (message.kind != engine::MessageKind::error)
            continue;
        EXPECT_EQ(message.place.file, name) << message.text;
        const bool isClosing = message.text.find("Errors have occurred") == 0;
        EXPECT_EQ(message.place.line == 0, isClosing) << message.text;
        EXPECT_LE(static_cast<std::size_t>(message.place.line), lineCount(text)) << message.text;
    }
}

/// Reads the text cut off at random places: what is not the whole scene is never taken for it.
inline void expectTruncationsAreTold(engine::Scene& scene, const std::string& text, unsigned seed)
{
    std::mt19937 random(seed);
    const std::size_t end = text.rfind("\n// End of");
    ASSERT_NE(end, std::string::npos);
    for (int i = 0; i < kTimes; ++i) {
        const std::size_t length = random() % end;
        SCOPED_TRACE("cut off at byte " + std::to_string(length));
        const std::string cut = text.substr(0, length);
        scene.scriptEditor().clearHistory();
        const ReadResult result = openSceneText(scene, cut, "cut.ma");
        // Of less than its head nobody can say what it was.
        EXPECT_TRUE(!result.isClean() || length <= text.find("//Last modified"));
        if (result.outcome)
            expectPlaces(scene, cut, "cut.ma");
        else
            EXPECT_EQ(result.place.file, "cut.ma");
    }
}

/// Reads the text with one byte changed after the other; now and then what was read is saved and read again.
inline void expectChangedBytesAreHarmless(engine::Scene& scene, const std::string& text, unsigned seed)
{
    constexpr int kBetweenSaves = 20;
    std::mt19937 random(seed);
    std::string damaged = text;
    for (int i = 0; i < kTimes; ++i) {
        const std::size_t place = random() % text.size();
        const char byte = static_cast<char>(random() % 256);
        SCOPED_TRACE("byte " + std::to_string(place) + " is " + std::to_string(byte));
        damaged[place] = byte;
        scene.scriptEditor().clearHistory();
        const ReadResult result = openSceneText(scene, damaged, "damaged.ma");
        damaged[place] = text[place];
        if (!result.outcome) {
            EXPECT_EQ(result.place.file, "damaged.ma");
            EXPECT_GT(result.place.line, 0);
            continue;
        }
        expectPlaces(scene, text, "damaged.ma");
        if (i % kBetweenSaves != 0)
            continue;
        const std::string first = test::savedText(scene);
        ASSERT_TRUE(openSceneText(scene, first, "saved.ma").outcome);
        EXPECT_TRUE(test::savedText(scene) == first);
    }
}

} // namespace tvxhost::scene::damage
