#include <gmock/gmock.h>

#include <cstring>

#include "dxf/dxf_block_basic.h"

namespace {
TSDXFBlockHeader Named(CDXFBlockBasic & store, char const * name)
{
    TSDXFBlockHeader header;
    store.ClearHeaderStructure(&header);
    std::strcpy(header.name, name);
    return header;
}

int Find(CDXFBlockBasic & store, std::string name)
{
    return store.FindBlockByName(name.data());
}

TEST(BlockStore, FindsTheFirstBlockOfANameWithCase)
{
    CDXFBlockBasic store;
    int index = 0;
    for (auto name : {"A", "B", "b", "B"}) {
        TSDXFBlockHeader header = Named(store, name);
        EXPECT_EQ(store.AddBlock(header), index++);
    }
    EXPECT_EQ(store.GetCountOfBlocks(), 4);
    EXPECT_EQ(Find(store, "B"), 1);
    EXPECT_EQ(Find(store, "b"), 2);
    EXPECT_EQ(Find(store, "a"), -1);
    EXPECT_EQ(Find(store, ""), -1);
    EXPECT_EQ(store.FindBlockByName(nullptr), -1);
}

TEST(BlockStore, CopiesAHeaderOutOfAGoodIndexOnly)
{
    CDXFBlockBasic store;
    TSDXFBlockHeader header = Named(store, "A");
    header.basePoint = {{1, 2, 3}};
    header.number = 7;
    store.AddBlock(header);
    header = Named(store, "changed");
    EXPECT_EQ(store.GetBlockHeader(1, &header), 0);
    EXPECT_EQ(store.GetBlockHeader(-1, &header), 0);
    EXPECT_STREQ(header.name, "changed");
    EXPECT_EQ(store.GetBlockHeader(0, &header), 1);
    EXPECT_STREQ(header.name, "A");
    EXPECT_EQ(header.basePoint.z, 3);
    EXPECT_EQ(header.number, 7);
}

TEST(BlockStore, AnswersForThePointerByTheIndexAlone)
{
    CDXFBlockBasic store;
    TSDXFBlockHeader header = Named(store, "A");
    store.AddBlock(header);
    EXPECT_EQ(store.GetPtrToData(0, nullptr), 1);
    EXPECT_EQ(store.GetPtrToData(1, nullptr), 0);
    EXPECT_EQ(store.GetPtrToData(-1, nullptr), 0);
}

TEST(BlockStore, ClearsAHeader)
{
    CDXFBlockBasic store;
    CObject content;
    TSDXFBlockHeader header;
    std::memset(&header, 'x', sizeof header);
    header.data = &content;
    store.ClearHeaderStructure(&header);
    EXPECT_STREQ(header.layer, "");
    EXPECT_STREQ(header.name, "");
    EXPECT_STREQ(header.secondName, "");
    EXPECT_EQ(header.basePoint.x, 0);
    EXPECT_EQ(header.number, 0);
    EXPECT_EQ(header.data, nullptr);
}

class ErasingStore : public CDXFBlockBasic
{
  public:
    std::vector<CObject *> erased;
    int EraseData(CObject * data) override
    {
        erased.push_back(data);
        return 1;
    }
};

TEST(BlockStore, ErasesTheContentOfEachBlock)
{
    ErasingStore store;
    CObject first;
    CObject second;
    for (CObject * content : {&first, &second}) {
        TSDXFBlockHeader header = Named(store, "A");
        header.data = content;
        store.AddBlock(header);
    }
    EXPECT_EQ(store.EraseAllBlocks(), 1);
    EXPECT_THAT(store.erased, testing::ElementsAre(&first, &second));
    EXPECT_EQ(store.GetCountOfBlocks(), 0);
}

TEST(BlockStore, ErasesNothingByItself)
{
    CDXFBlockBasic store;
    EXPECT_EQ(store.EraseData(nullptr), 1);
}
}  // namespace
