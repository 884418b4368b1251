// PluginData: data of a type that a plug-in registered, and the table of those types.
#pragma once

#include "attribute.h"
#include "data.h"
#include "scene.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace tvxhost::engine {

class PluginData;

/// A type of data that a plug-in registered. Lives on for the data that is left when the plug-in goes.
struct PluginDataType
{
    std::string name;
    std::uint32_t id = 0;
    std::string plugin;
    /// Makes new data of the type; null when the plug-in's code makes none. Empty once the plug-in is gone.
    std::function<Ref<PluginData>(const std::shared_ptr<PluginDataType>& type)> make{};
    /// All data of the type, in attributes, edits that can be undone, handles and defaults.
    std::unordered_set<PluginData*> instances{};
};

/// Data that a plug-in's own code copies, reads and writes. When the plug-in goes, the words that the code
/// wrote last stay in its place, so that the data can be saved again.
class PluginData : public Data
{
public:
    ~PluginData() override;

    const PluginDataType& dataType() const { return *m_dataType; }
    Ref<Data> clone() const override;

    /// What stands behind `-type "NAME" `; why there is nothing when the plug-in's code fails.
    Expected<std::string> words() const;
    /// Takes the values of a `setAttr`, all of them.
    Outcome read(const std::vector<ScriptRunner::Result>& values);
    /// Lets the plug-in's object go, and keeps the words that it writes.
    void settle();

protected:
    explicit PluginData(std::shared_ptr<PluginDataType> type);

private:
    // What the plug-in's code does; called only while it is there.
    virtual Outcome copyFrom(const PluginData& original) = 0;
    virtual Expected<std::string> write() const = 0;
    virtual Outcome take(const std::vector<ScriptRunner::Result>& values) = 0;
    virtual void dropObject() = 0;

    std::shared_ptr<PluginDataType> m_dataType;
    std::optional<Expected<std::string>> m_kept; ///< once it is settled
};

/// The types of data that plug-ins registered in a session.
class PluginDataTypes
{
public:
    ~PluginDataTypes();

    /// nameTaken when a type of data has the name or the id.
    Outcome add(PluginDataType type);
    /// Null when there is none.
    std::shared_ptr<PluginDataType> find(const std::string& name) const;
    std::shared_ptr<PluginDataType> find(std::uint32_t id) const;
    /// In the order of registration.
    const std::vector<std::shared_ptr<PluginDataType>>& all() const { return m_types; }
    std::vector<std::shared_ptr<PluginDataType>> ofPlugin(const std::string& plugin) const;
    /// Forgets a type and settles the data that is left of it.
    void remove(const PluginDataType& type);
    /// After a plug-in was given another name.
    void renamePlugin(const std::string& before, const std::string& after);

private:
    std::vector<std::shared_ptr<PluginDataType>> m_types;
};

/// Whether data of a plug-in's type belongs into an attribute: a typed one of the type (or of any such), a
/// generic one that accepts it.
bool takesPluginData(const Attribute& attribute, const std::string& typeName);

/// Whether there is data of a type beside the defaults of the attributes that its plug-in declares.
bool hasDataInUse(const PluginDataType& type, const TypeTable& types);

/// New data of a type; failed when the plug-in's code makes none.
Expected<Ref<PluginData>> makePluginData(const std::shared_ptr<PluginDataType>& type);

} // namespace tvxhost::engine
