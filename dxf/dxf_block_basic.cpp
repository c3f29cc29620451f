#include "dxf/dxf_block_basic.h"

#include <cstring>

IMPLEMENT_DYNAMIC(CDXFBlockBasic, CObject)

CDXFBlockBasic::~CDXFBlockBasic()
{
    EraseAllBlocks();
}

int CDXFBlockBasic::AddBlock(TSDXFBlockHeader & header)
{
    return m_blocks.Add(header);
}

int CDXFBlockBasic::FindBlockByName(char * name)
{
    if (!name)
        return -1;
    for (int i = 0; i < m_blocks.GetSize(); ++i)
        if (std::strcmp(m_blocks[i].name, name) == 0)
            return i;
    return -1;
}

int CDXFBlockBasic::EraseData(CObject *)
{
    return 1;
}

int CDXFBlockBasic::GetCountOfBlocks()
{
    return m_blocks.GetSize();
}

int CDXFBlockBasic::GetBlockHeader(int index, TSDXFBlockHeader * header)
{
    if (!IsIndex(index))
        return 0;
    *header = m_blocks[index];
    return 1;
}

int CDXFBlockBasic::GetPtrToData(int index, CObject *)
{
    return IsIndex(index) ? 1 : 0;
}

int CDXFBlockBasic::EraseAllBlocks()
{
    for (int i = 0; i < m_blocks.GetSize(); ++i)
        EraseData(m_blocks[i].data);
    m_blocks.RemoveAll();
    return 1;
}

void CDXFBlockBasic::ClearHeaderStructure(TSDXFBlockHeader * header)
{
    *header = {};
}
