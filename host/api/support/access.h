// tvxAccess: the one place that reaches into the private storage of the API's classes.
#pragma once

#include "engine/dagPath.h"
#include "engine/node.h"
#include "engine/object.h"
#include "engine/plug.h"
#include "engine/selection.h"
#include "engine/text.h"

#include <maya/MArgList.h>
#include <maya/MArgParser.h>
#include <maya/MCommandResult.h>
#include <maya/MDGContext.h>
#include <maya/MDGModifier.h>
#include <maya/MDagPath.h>
#include <maya/MDataBlock.h>
#include <maya/MFnBase.h>
#include <maya/MFnDagNode.h>
#include <maya/MIteratorType.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MPxCommand.h>
#include <maya/MPxData.h>
#include <maya/MPxNode.h>
#include <maya/MSelectionList.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MSyntax.h>
#include <maya/MTransformationMatrix.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace tvxhost::api {
class PxBehaviour;
class PxData;
} // namespace tvxhost::api

/// Friend of every class of the API. Storage in, storage out; no behaviour.
class tvxAccess
{
    using Object = tvxhost::engine::Object;
    using Plug = tvxhost::engine::Plug;
    using Text = tvxhost::engine::Text;

public:
    static unsigned char internalCode(const MStatus& status) { return status.fInternalStatusCode; }

    // MObject
    static Object* object(const MObject& handle) { return handle.object; }
    /// A counted handle; null gives the null handle.
    static MObject handle(const Object* object)
    {
        MObject made;
        setObject(made, object);
        return made;
    }
    static void setObject(MObject& handle, const Object* object)
    {
        if (object)
            object->retain();
        if (handle.object)
            handle.object->release();
        handle.object = const_cast<Object*>(object);
    }
    /// Of a handle under construction.
    static void init(MObject& handle, Object* object)
    {
        handle.object = object;
        handle.reserved = nullptr;
        if (object)
            object->retain();
    }

    // MString
    static const std::string& text(const MString& string)
    {
        static const std::string empty;
        return string.chars ? *string.chars : empty;
    }
    static MString string(std::string text)
    {
        MString made;
        delete std::exchange(made.chars, text.empty() ? nullptr : new std::string(std::move(text)));
        return made;
    }
    /// The engine's text seen as a string of the API: both are an owned std::string and a spare word.
    static MString& lend(Text& text)
    {
        static_assert(sizeof(MString) == sizeof(Text) && alignof(MString) == alignof(Text));
        return reinterpret_cast<MString&>(text);
    }

    // MPlug
    static const Plug& plug(const MPlug& plug)
    {
        static const Plug null;
        return plug.plug ? *plug.plug : null;
    }
    static MPlug plug(Plug plug)
    {
        MPlug made;
        setPlug(made, std::move(plug));
        return made;
    }
    static void setPlug(MPlug& target, Plug plug)
    {
        if (target.plug)
            *target.plug = std::move(plug);
        else if (!plug.isNull())
            target.plug = new Plug(std::move(plug));
    }
    static Plug*& plugSlot(MPlug& plug) { return plug.plug; }

    // Handles of the data block: plain words, copied as they are
    template <class Handle>
    static char* storage(Handle& handle)
    {
        return handle.storage;
    }
    template <class Handle>
    static const char* storage(const Handle& handle)
    {
        return handle.storage;
    }

    static tvxhost::api::DataBlock* dataBlock(const MDataBlock& block) { return block.block; }
    static MDataBlock dataBlock(tvxhost::api::DataBlock& block) { return MDataBlock(&block); }

    // MDGContext: null for the normal one
    static const tvxhost::api::DGContext* context(const MDGContext& context) { return context.context; }

    static tvxhost::api::Modifier& modifier(MDGModifier& modifier) { return *modifier.modifier; }

    // A plug-in's own objects
    static void tie(MPxNode& object, tvxhost::engine::Node& node, tvxhost::api::PxBehaviour& behaviour)
    {
        object.node = &node;
        object.reserved = &behaviour;
    }
    /// The data object that holds a plug-in's own; null for one that is in none yet.
    static tvxhost::api::PxData* data(const MPxData& object)
    {
        return reinterpret_cast<tvxhost::api::PxData*>(object.instance);
    }
    static void tie(MPxData& object, tvxhost::api::PxData& data) { object.instance = &data; }
    static tvxhost::api::CommandState*& commandState(MPxCommand& command) { return command.state; }
    static tvxhost::api::Arguments& arguments(MArgList& list) { return *list.arguments; }
    static const tvxhost::api::Arguments& arguments(const MArgList& list) { return *list.arguments; }
    static const tvxhost::api::SyntaxTable& syntax(const MSyntax& syntax) { return *syntax.syntax; }
    static const tvxhost::api::ParsedArguments& parsed(const MArgParser& parser) { return *parser.parsed; }

    // Arrays: the vector that holds the elements
    template <class Array>
    static auto& elements(Array& array)
    {
        if (!array.elements)
            array.elements = new std::remove_pointer_t<decltype(array.elements)>;
        return *array.elements;
    }
    template <class Array>
    static const auto& elements(const Array& array)
    {
        static const std::remove_pointer_t<decltype(array.elements)> none;
        return array.elements ? *array.elements : none;
    }
    template <class Array>
    static auto*& elementsSlot(Array& array)
    {
        return array.elements;
    }

    /// Makes an array one that edits the elements inside a data object, which it keeps alive.
    template <class Array, class Elements>
    static void lend(Array& array, Elements& elements, const Object& lender)
    {
        array.elements = &elements;
        array.lender = const_cast<Object*>(&lender);
        lender.retain();
    }

    // MDagPath: null when the path is not valid
    static const tvxhost::engine::DagPath* dagPath(const MDagPath& path) { return path.path; }
    static MDagPath dagPath(tvxhost::engine::DagPath path)
    {
        MDagPath made;
        setDagPath(made, std::move(path));
        return made;
    }
    static void setDagPath(MDagPath& target, tvxhost::engine::DagPath path)
    {
        delete std::exchange(target.path,
                             path.isValid() ? new tvxhost::engine::DagPath(std::move(path)) : nullptr);
    }

    // MTransformationMatrix
    static tvxhost::api::Transformation& parts(MTransformationMatrix& matrix)
    {
        return *matrix.transformation;
    }
    static const tvxhost::api::Transformation& parts(const MTransformationMatrix& matrix)
    {
        return *matrix.transformation;
    }

    // MSelectionList
    static tvxhost::engine::SelectionList& selection(MSelectionList& list) { return *list.list; }
    static const tvxhost::engine::SelectionList& selection(const MSelectionList& list) { return *list.list; }

    // MIteratorType
    static const std::vector<int>& filterTypes(const MIteratorType& info) { return info.filters; }

    // MCommandResult
    static tvxhost::api::CommandValue& commandValue(MCommandResult& result) { return *result.value; }

    // Function sets
    static MDagPath& pathOf(MFnDagNode& set) { return set.path; }
    static const MDagPath& pathOf(const MFnDagNode& set) { return set.path; }
    static Object* attached(const MFnBase& set) { return reinterpret_cast<Object*>(set.f_ptr); }
    /// Attaches a set to an object, or (null) to nothing.
    static void attach(MFnBase& set, const Object* object)
    {
        if (object)
            object->retain();
        if (Object* old = attached(set))
            old->release();
        set.f_ptr = reinterpret_cast<MPtrBase*>(const_cast<Object*>(object));
        set.f_constptr = set.f_ptr;
        set.fIsReferenceCounted = object != nullptr;
    }
    static bool objectChanged(MFnBase& set, MFn::Type type, MStatus* status)
    {
        return set.objectChanged(type, status);
    }
};

namespace tvxhost::api {

/// An MPlug that shows a plug of the engine for the length of a call, without a copy.
class LentPlug
{
public:
    explicit LentPlug(const engine::Plug& plug)
    {
        tvxAccess::plugSlot(m_plug) = const_cast<engine::Plug*>(&plug);
    }
    ~LentPlug() { tvxAccess::plugSlot(m_plug) = nullptr; }
    LentPlug(const LentPlug&) = delete;
    LentPlug& operator=(const LentPlug&) = delete;

    const MPlug& get() const { return m_plug; }

private:
    MPlug m_plug;
};

} // namespace tvxhost::api
