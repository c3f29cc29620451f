#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "dxf/dxf_in_basic.h"
#include "platform/base/file_choice.h"
#include "test_paths.h"
#include "tests/support/dialog_driver.h"

namespace {
TSFileChoice SomeChoice()
{
    TSFileChoice choice;
    choice.title =
        "V\xFD"
        "b\xEC"
        "r souboru";  // Czech for "choice of a file"
    choice.extension = "dxf";
    choice.filter = "DXF (*.dxf)|*.dxf||";
    choice.flags = OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
    return choice;
}

TEST(FileDialog, CancelIsNoChoice)
{
    std::string title;
    DialogDriver driver([&](HWND dialog) {
        title = WindowText(dialog);
        Click(dialog, IDCANCEL);
    });
    CString path = "before";
    EXPECT_EQ(ChooseFile(SomeChoice(), path), 0);
    EXPECT_TRUE(driver.HasActed());
    EXPECT_EQ(title, "Výběr souboru");
    EXPECT_EQ(path, "before");
}

TEST(FileDialog, CancelledOpeningOfADrawingFails)
{
    DialogDriver driver([](HWND dialog) { Click(dialog, IDCANCEL); });
    CDXFInBasic reader;
    EXPECT_EQ(reader.Create("Open", "a.dxf", "dxf", "DXF (*.dxf)|*.dxf||"), 1);
    EXPECT_TRUE(driver.HasActed());
}
}  // namespace
