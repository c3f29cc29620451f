#include "sheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "platform/base/code_page.h"

namespace {
std::vector<TSDrawnCall> Recorded(int & leftSelected, int & leftUndeleted)
{
    CRecordingDC recording;
    DrawSheet(recording);
    std::vector<TSDrawnCall> calls = recording.Close();
    leftSelected = recording.GetLeftSelected();
    leftUndeleted = recording.GetLeftUndeleted();
    return calls;
}

TEST(Sheet, LeavesNoObjectSelectedOrUndeleted)
{
    int leftSelected = -1, leftUndeleted = -1;
    EXPECT_GT(Recorded(leftSelected, leftUndeleted).size(), 100U);
    EXPECT_EQ(leftSelected, 0);
    EXPECT_EQ(leftUndeleted, 0);
}

TEST(Sheet, ShowsEveryLineStyleHatchAndMeasure)
{
    int leftSelected = 0, leftUndeleted = 0;
    std::set<UINT> styles;
    std::multiset<std::string> texts;
    std::set<LONG> angles;
    for (TSDrawnCall const & call : Recorded(leftSelected, leftUndeleted)) {
        if (call.kind == EDrawn::Line)
            styles.insert(call.pen.lopnStyle);
        if (call.kind != EDrawn::Text)
            continue;
        texts.insert(Utf8From1250(call.text));
        angles.insert(call.font.lfEscapement);
    }
    for (UINT style : {PS_SOLID, PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT})
        EXPECT_EQ(styles.count(style), 1U) << style;
    EXPECT_EQ(texts.count("Průřez T 200/180"), 1U);
    EXPECT_EQ(texts.count("Žluťoučký kůň"), 4U);
    // The lengths of the dimension chains in millimetres; the fillets' chord is 30 * sqrt(2).
    EXPECT_EQ(texts.count("50"), 2U);
    EXPECT_EQ(texts.count("100"), 3U);
    EXPECT_EQ(texts.count("180"), 2U);
    for (char const * once : {"200", "140", "40", "20", "42"})
        EXPECT_EQ(texts.count(once), 1U) << once;
    for (LONG angle : {0, 300, 600, 900})
        EXPECT_EQ(angles.count(angle), 1U) << angle;
}

TEST(Sheet, HasItsColoursInPlace)
{
    CImageDC image(kSheetWidth, kSheetHeight);
    DrawSheet(image);
    EXPECT_EQ(image.GetPixel(2, 2), RGB(255, 255, 255));
    EXPECT_EQ(image.GetPixel(850, 511), RGB(240, 200, 120));   // the ellipse
    EXPECT_EQ(image.GetPixel(945, 520), RGB(150, 200, 150));   // the triangle
    EXPECT_EQ(image.GetPixel(1035, 511), RGB(220, 150, 150));  // the rectangle
    EXPECT_EQ(image.GetPixel(1050, 90), RGB(20, 30, 40));      // the solid line
}
}  // namespace
