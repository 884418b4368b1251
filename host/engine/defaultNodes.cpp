// Default nodes: see defaultNodes.h and types/defaults.nodes.
#include "defaultNodes.h"

#include "cell.h"
#include "scene.h"
#include "tableWords.h"
#include "typeReader.h"
#include "values.h"

#include <stdexcept>

namespace tvxhost::engine {

namespace {

class Maker
{
public:
    explicit Maker(Scene& scene) : m_scene(scene) {}

    void read(const std::vector<std::string>& words)
    {
        if (words[0] == "node")
            makeNode(words);
        else if (words[0] == "connect")
            require(m_scene.connect(plugNamed(words[1]), plugNamed(words[2])));
        else if (words[0] == "text")
            require(writeString(ownPlug(words[1]), words[2]));
        else
            setNumbers(words);
    }

private:
    static void require(const Outcome& outcome)
    {
        if (!outcome)
            throw std::logic_error("default nodes: " + outcome.text);
    }

    template <class T>
    static T valueOf(Expected<T> expected)
    {
        require(expected.outcome);
        return std::move(expected.value);
    }

    void makeNode(const std::vector<std::string>& words)
    {
        const bool isBelow = words.size() > 4 && words[3] == "below";
        DagNode* parent = isBelow ? valueOf(m_scene.findNode(words[4]))->asDag() : nullptr;
        m_node = valueOf(m_scene.createNode(words[1], words[2], parent));
        m_node->isShared = words.back() == "shared";
        m_node->isDefaultNode = !m_node->isShared;
    }

    Plug ownPlug(const std::string& path) { return valueOf(m_node->findPlug(path)); }

    Plug plugNamed(const std::string& name)
    {
        const bool isNext = name.size() > 2 && name.compare(name.size() - 2, 2, "[]") == 0;
        const Plug plug = valueOf(m_scene.findPlug(isNext ? name.substr(0, name.size() - 2) : name));
        return isNext ? m_scene.nextAvailable(plug) : plug;
    }

    void setNumbers(const std::vector<std::string>& words)
    {
        const std::vector<Plug> leaves = leavesOf(ownPlug(words[1]));
        for (std::size_t i = 0; i < leaves.size(); ++i) {
            const bool isAngle = leaves[i].attribute()->unit == UnitKind::angle;
            const double value = std::stod(words.at(i + 2));
            require(
                writeNumber(leaves[i], Number(isAngle ? value * radiansPer(AngularUnit::degrees) : value)));
        }
    }

    Scene& m_scene;
    Node* m_node = nullptr;
};

} // namespace

void makeDefaultNodes(Scene& scene)
{
    Maker maker(scene);
    forEachLine(kDefaultNodes, [&](int, const std::vector<std::string>& words) { maker.read(words); });
}

} // namespace tvxhost::engine
