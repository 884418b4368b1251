// A plug-in's library says for which interface it was built.
#include <maya/MFnPlugin.h>

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(ApiVersion, TheHeaderOfTheEntryUnitDefinesTheVersionAsText)
{
    EXPECT_EQ(std::string(MApiVersion), "201602");
    EXPECT_EQ(MAYA_API_VERSION, 201602);
}

} // namespace
