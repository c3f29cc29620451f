#include <gmock/gmock.h>

#include "dxf/layer_choice.h"
#include "recording_reader.h"

using testing::ElementsAre;

namespace {
std::vector<std::string> g_offered;
std::vector<int> g_flagsBefore;
int g_choices = 0;

// Stands for a user who keeps only the layers whose names begin with "W".
void KeepWalls(CStringArray const & names, CByteArray & flags)
{
    ++g_choices;
    for (int i = 0; i < names.GetSize(); ++i) {
        g_offered.emplace_back(names.GetAt(i));
        g_flagsBefore.push_back(flags.GetAt(i));
        flags.SetAt(i, names.GetAt(i).GetAt(0) == 'W' ? 1 : 0);
    }
}

class LayerChoice : public testing::Test
{
  protected:
    LayerChoice() : m_before(SetLayerChoiceHandler(KeepWalls))
    {
        g_offered.clear();
        g_flagsBefore.clear();
        g_choices = 0;
    }
    ~LayerChoice() override { SetLayerChoiceHandler(m_before); }

    int IsOn(char const * layer)
    {
        CString name(layer);
        return m_reader.IsLayerOn(name);
    }

    RecordingReader m_reader;

  private:
    LayerChoiceHandler m_before;
};

std::string TablesOf(std::string const & groups)
{
    return Groups("0|SECTION; 2|TABLES; " + groups + "; 0|ENDSEC; 0|EOF");
}

TEST_F(LayerChoice, IsOfferedAtTheEndOfTheTables)
{
    m_reader.SetUseLayersFilter(1);
    ReadDrawing(m_reader,
                TablesOf("0|TABLE; 2|LAYER; 70|2; 0|LAYER; 2|Walls; 70|0; 0|LAYER; 2|Doors; 0|ENDTAB"));
    EXPECT_THAT(g_offered, ElementsAre("Walls", "Doors"));
    EXPECT_THAT(g_flagsBefore, ElementsAre(1, 1));
    EXPECT_EQ(IsOn("Walls"), 1);
    EXPECT_EQ(IsOn("Doors"), 0);
    EXPECT_EQ(IsOn("Unknown"), 1);
}

TEST_F(LayerChoice, IsNotOfferedWithTheFilterOff)
{
    ReadDrawing(m_reader, TablesOf("0|LAYER; 2|Doors"));
    EXPECT_EQ(g_choices, 0);
    CString name("Doors");
    EXPECT_EQ(m_reader.SetLayerOn(name, 0), 1);
    EXPECT_EQ(IsOn("Doors"), 1);
}

TEST_F(LayerChoice, IsNotOfferedWithoutTables)
{
    m_reader.SetUseLayersFilter(1);
    ReadDrawing(m_reader, EntitiesOf("0|LINE; 8|Doors; 31|0"));
    EXPECT_EQ(g_choices, 0);
    EXPECT_EQ(IsOn("Doors"), 1);
    EXPECT_EQ(m_reader.SetUseLayersFilter(0), 1);
}

TEST_F(LayerChoice, TurnsTheFilterOffWithoutLayers)
{
    m_reader.SetUseLayersFilter(1);
    ReadDrawing(m_reader, TablesOf("0|TABLE; 2|LAYER; 0|ENDTAB"));
    EXPECT_EQ(g_choices, 0);
    EXPECT_EQ(m_reader.SetUseLayersFilter(1), 0);
}

TEST_F(LayerChoice, LeavesAllLayersOnWhereNobodyChooses)
{
    SetLayerChoiceHandler(nullptr);
    m_reader.SetUseLayersFilter(1);
    ReadDrawing(m_reader, TablesOf("0|LAYER; 2|Doors"));
    EXPECT_EQ(IsOn("Doors"), 1);
}

TEST_F(LayerChoice, TakesALayerWithoutAFlagForOn)
{
    SetLayerChoiceHandler([](CStringArray const &, CByteArray & flags) { flags.SetSize(1); });
    m_reader.SetUseLayersFilter(1);
    ReadDrawing(m_reader, TablesOf("0|LAYER; 2|A; 0|LAYER; 2|B"));
    CString const b("B");
    CString name = b;
    EXPECT_EQ(m_reader.SetLayerOn(name, 0), 0);
    EXPECT_EQ(m_reader.IsLayerOn(name), 1);
}

TEST_F(LayerChoice, NamesOfTableAndEntitiesAreCutAtTheSameBlank)
{
    m_reader.SetUseLayersFilter(1);
    ReadDrawing(m_reader,
                Groups("0|SECTION; 2|TABLES; 0|LAYER; 2|Doors old; 0|ENDSEC; 0|SECTION; 2|ENTITIES; "
                       "0|LINE; 8|Doors old; 31|0; 0|ENDSEC; 0|EOF"));
    EXPECT_THAT(g_offered, ElementsAre("Doors"));
    EXPECT_STREQ(m_reader.Layer(), "Doors");
    EXPECT_EQ(IsOn(m_reader.Layer()), 0);
}

TEST_F(LayerChoice, OneRowStandsForTwoRecordsOfAName)
{
    m_reader.SetUseLayersFilter(1);
    ReadDrawing(m_reader, TablesOf("0|LAYER; 2|W; 0|LAYER; 2|w; 0|LAYER; 2|W"));
    EXPECT_THAT(g_offered, ElementsAre("W", "w"));
}

TEST_F(LayerChoice, ARecordWithoutANameHasAnEmptyOne)
{
    m_reader.SetUseLayersFilter(1);
    Reading const reading = ReadDrawing(m_reader, TablesOf("0|LAYER; 70|0; 0|LAYER; 2|W"));
    EXPECT_EQ(reading.status, 0);
    EXPECT_THAT(g_offered, ElementsAre("", "W"));
}

TEST(LayerTable, AddsANameOnceAndAnswersOneBothTimes)
{
    RecordingReader reader;
    CString name("A");
    EXPECT_EQ(reader.AddLayerToArray(name), 1);
    EXPECT_EQ(reader.AddLayerToArray(name), 1);
}

TEST(LayerTable, SetsAnUnknownLayerWithoutComplaint)
{
    RecordingReader reader;
    CString name("A");
    EXPECT_EQ(reader.SetLayerOn(name, 0), 1);
}

TEST(LayerTable, ARefusedLayerEndsTheReading)
{
    RecordingReader reader;
    reader.statusOf["LAYER"] = 10;
    EXPECT_EQ(ReadDrawing(reader, TablesOf("0|LAYER; 2|A")).status, 10);
    reader.statusOf["LAYER"] = 10;
    EXPECT_EQ(ReadDrawing(reader, TablesOf("0|LAYER; 70|0; 0|LAYER")).status, 10);
}

TEST(LayerTable, TakesHundredThousandLayersInNoTime)
{
    RecordingReader reader;
    for (int i = 0; i < 100000; ++i) {
        CString name;
        name.Format("Layer%d", i);
        reader.AddLayerToArray(name);
    }
    CString last("Layer99999");
    reader.SetUseLayersFilter(1);
    EXPECT_EQ(reader.SetLayerOn(last, 0), 1);
    EXPECT_EQ(reader.IsLayerOn(last), 0);
}
}  // namespace
