#include <afxwin.h>
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "message_box_responder.h"

namespace {

class MessageBoxTest : public testing::Test {
protected:
    ~MessageBoxTest() override { SetMessageBoxResponder({}); }
};

TEST_F(MessageBoxTest, AProgramAnswersAllBoxes) {
    std::vector<ShownMessageBox> shown;
    SetMessageBoxResponder([&shown](const ShownMessageBox& box) {
        shown.push_back(box);
        return IDYES;
    });
    EXPECT_EQ(IDYES, AfxMessageBox("First?", MB_YESNO));
    EXPECT_EQ(IDYES, MessageBoxA(nullptr, "Second?", "Title", MB_YESNO | MB_ICONHAND));
    std::thread([] { AfxMessageBox("Third"); }).join();
    SetMessageBoxResponder([](const ShownMessageBox& box) { return box.text == "Fourth" ? IDNO : 0; });
    EXPECT_EQ(IDNO, MessageBoxA(nullptr, "Fourth", nullptr, MB_YESNO));

    ASSERT_EQ(3u, shown.size());
    EXPECT_EQ("First?", shown[0].text);
    EXPECT_EQ(AfxGetAppName(), shown[0].caption);
    EXPECT_EQ(MB_YESNO, shown[0].type);
    EXPECT_EQ("Second?", shown[1].text);
    EXPECT_EQ("Title", shown[1].caption);
    EXPECT_EQ(MB_YESNO | MB_ICONHAND, shown[1].type);
    EXPECT_EQ(MB_OK, shown[2].type);
    EXPECT_EQ(nullptr, shown[2].owner);
}

TEST_F(MessageBoxTest, TheTitleIsTheProgramsName) {
    EXPECT_STREQ("project_test", AfxGetAppName());
}

}  // namespace
