// The host members as the host contract gives them, written out here on purpose as a second
// copy: the list every shell derives its calls from must name the same members on the same
// objects with the same argument shapes (VARIANT types) at the boundary.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "host/HostMembers.h"

namespace {

const char* vartype(host::Shape shape) {
    switch (shape) {
        case host::Shape::SessionRef:
            return "VT_I4|VT_BYREF";
        case host::Shape::Long:
            return "VT_I4";
        case host::Shape::Int:
            return "VT_I2";
        case host::Shape::Bool:
            return "VT_BOOL";
        case host::Shape::Str:
            return "VT_BSTR";
        case host::Shape::StrRef:
            break;
    }
    return "VT_BSTR|VT_BYREF";
}

// "Object.Member(VT_..., ...)"
std::string signature(const char* object, const char* member, std::vector<host::Shape> shapes) {
    std::string text = std::string(object) + "." + member + "(";
    for (size_t i = 0; i < shapes.size(); ++i)
        text += (i ? ", " : "") + std::string(vartype(shapes[i]));
    return text + ")";
}

std::map<std::string, std::string> listed() {
    std::map<std::string, std::string> members;
#define QUORBEL_LISTED(object, member, keeping, ...) \
    members[#member] = signature(#object, #member, {QUORBEL_SHAPES(__VA_ARGS__)});
    QUORBEL_HOST_MEMBERS(QUORBEL_LISTED)
#undef QUORBEL_LISTED
    return members;
}

const char* const kContract[] = {
    "Appli.StartSessionFromCallParams(VT_I4|VT_BYREF)",
    "Appli.EndSession(VT_I4|VT_BYREF)",
    "Appli.GetLanguage(VT_I4|VT_BYREF)",
    "Appli.GetCallParamsInfo(VT_I4|VT_BYREF, VT_I4)",
    "Appli.InsertMenuItem(VT_I4|VT_BYREF, VT_BSTR|VT_BYREF, VT_I2, VT_I2, VT_BSTR, VT_I2, VT_I2, "
    "VT_BSTR, VT_BSTR, VT_BSTR)",
    "Scene.ObjectGetInfo(VT_I4|VT_BYREF, VT_I4, VT_I4)",
    "Scene.ObjectSetInfo(VT_I4|VT_BYREF, VT_I4, VT_BSTR, VT_I4)",
    "Scene.ViewRefresh(VT_I4|VT_BYREF)",
    "Scene.SceneGetObjectsNb(VT_I4|VT_BYREF)",
    "Scene.SceneGetObjectId(VT_I4|VT_BYREF, VT_I4)",
    "Scene.ObjectGetParentId(VT_I4|VT_BYREF, VT_I4)",
    "Scene.ObjectGetChildrenNb(VT_I4|VT_BYREF, VT_I4, VT_I2)",
    "Scene.ObjectGetChildId(VT_I4|VT_BYREF, VT_I4, VT_I4, VT_I2)",
    "Scene.ObjectGetScript(VT_I4|VT_BYREF, VT_I4)",
    "Scene.EditReplaceSelection(VT_I4|VT_BYREF, VT_BSTR, VT_BSTR, VT_I2, VT_I4, VT_I4, VT_I4, "
    "VT_I2)",
    "Catalog.FileLoad(VT_I4|VT_BYREF, VT_BSTR)",
    "Catalog.GetInfo(VT_I4|VT_BYREF, VT_I4)",
    "Catalog.DicoGetStringFromKey(VT_I4|VT_BYREF, VT_BSTR, VT_BSTR)",
    "Catalog.TableGetLinesNb(VT_I4|VT_BYREF, VT_I4, VT_I2)",
    "Catalog.TableGetLineRankFromCode(VT_I4|VT_BYREF, VT_I4, VT_I4, VT_I2, VT_BSTR, VT_BOOL)",
    "Catalog.TableGetLineRankFromName(VT_I4|VT_BYREF, VT_I4, VT_I4, VT_I2, VT_BSTR, VT_BOOL)",
    "Catalog.TableGetLineInfo(VT_I4|VT_BYREF, VT_I4, VT_I4, VT_I4, VT_I2)",
    "Catalog.FileExportResource(VT_I4|VT_BYREF, VT_I4, VT_BSTR)",
};

TEST(HostMembers, TheListHasTheContractsMembersAndShapes) {
    std::map<std::string, std::string> members = listed();
    EXPECT_EQ(members.size(), host::kMemberCount);
    for (const std::string contract : kContract) {
        const std::string name =
            contract.substr(contract.find('.') + 1, contract.find('(') - contract.find('.') - 1);
        const auto it = members.find(name);
        ASSERT_NE(it, members.end()) << "not listed: " << contract;
        EXPECT_EQ(it->second, contract);
        members.erase(it);
    }
    for (const auto& [name, signature] : members)
        ADD_FAILURE() << "not in the contract: " << signature;
}

}  // namespace
