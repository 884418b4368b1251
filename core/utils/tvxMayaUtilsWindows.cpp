// Where windows open.
#include "core/utils/tvxMayaUtils.h"

#include <maya/MGlobal.h>

#include <locale>
#include <sstream>

namespace tarvox::crowd {

namespace {

void query(const char* what, const char* name, int& value)
{
    MGlobal::executeCommand(MString("windowPref ") + what + " " + name + ";", value, false, false);
}

} // namespace

void MayaUtils::restoreWindowPreference(const char* name, int top, int left, int width, int height)
{
    std::ostringstream script;
    script.imbue(std::locale::classic());
    script << "if(!`windowPref -exists " << name << "`) windowPref " << name << ";\n"
           << "windowPref -edit -topLeftCorner " << top << " " << left << " -widthHeight " << width << " "
           << height << " " << name;
    MGlobal::executeCommand(script.str().c_str(), false, false);
}

void MayaUtils::saveAllWindowPreferences()
{
    MGlobal::executeCommand("windowPref -saveAll ;", false, false);
}

void MayaUtils::getWindowPreference(const char* name, int& top, int& left, int& width, int& height)
{
    int exists = 0;
    query("-exists", name, exists);
    if (exists != 1)
        return;
    query("-q -topEdge", name, top);
    query("-q -leftEdge", name, left);
    query("-q -width", name, width);
    query("-q -height", name, height);
}

} // namespace tarvox::crowd
