// A plug-in with the command qtProbe: the main windows that a plug-in finds, by their names.
#include <maya/MArgList.h>
#include <maya/MFnPlugin.h>
#include <maya/MPxCommand.h>
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include <QApplication>
#include <QMainWindow>

namespace {

class QtProbe : public MPxCommand
{
public:
    static void* create() { return new QtProbe; }

    MStatus doIt(const MArgList&) override
    {
        MStringArray names;
        if (qobject_cast<QApplication*>(QCoreApplication::instance()))
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (auto* window = qobject_cast<QMainWindow*>(widget); window && !window->parent())
                    names.append(MString(window->objectName().toUtf8().constData()));
        setResult(names);
        return MS::kSuccess;
    }
};

} // namespace

PLUGIN_EXPORT MStatus initializePlugin(MObject object)
{
    MFnPlugin plugin(object, "tests", "1.0");
    return plugin.registerCommand("qtProbe", QtProbe::create);
}

PLUGIN_EXPORT MStatus uninitializePlugin(MObject object)
{
    MFnPlugin plugin(object);
    return plugin.deregisterCommand("qtProbe");
}
