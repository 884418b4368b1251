// What tests of commands on files share: a session whose project is a folder of its own, empty at first.
#pragma once

#include "../support/temporaryFolder.h"
#include "CommandFixture.h"

namespace tvxhost::mel {

class ProjectFixture : public CommandFixture
{
protected:
    ProjectFixture() { session.workspace.open(folder.path()); }

    std::string path(const std::string& name) const { return folder.path(name); }
    /// Writes a file of a scene that consists of these statements.
    void writeScene(const std::string& name, const std::string& statements) const
    {
        folder.write(name, "//Maya ASCII 2016 scene\n" + statements);
    }

    const test::TemporaryFolder folder;
};

} // namespace tvxhost::mel
