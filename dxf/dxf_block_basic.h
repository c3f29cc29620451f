#ifndef KX7_DXF_DXF_BLOCK_BASIC_H
#define KX7_DXF_DXF_BLOCK_BASIC_H

#include "geometry/records.h"
#include "platform/base/array.h"
#include "platform/base/export.h"
#include "platform/base/object.h"

/// One block of a drawing, as its header in the file tells.
struct TSDXFBlockHeader
{
    char layer[81];
    TUVect3D basePoint;
    char name[81];
    char secondName[81];
    int number;         ///< For the host.
    char reserved[16];  ///< For the host.
    CObject * data;     ///< The host's content of the block.
};

/// A store of block headers, in which a host finds the block that an insertion names.
class KX7_API CDXFBlockBasic : public CObject
{
    DECLARE_DYNAMIC(CDXFBlockBasic)

    CDXFBlockBasic() = default;

    /// Empties the store. A derived class whose EraseData frees something empties it in its own destructor,
    /// as it is not asked any more here.
    ~CDXFBlockBasic() override;

    /// Stores a copy of the header; the result is its index.
    virtual int AddBlock(TSDXFBlockHeader & header);

    /// The index of the first block of this name, -1 if there is none. Case matters.
    virtual int FindBlockByName(char * name);

    /// Frees the content of a block. Here it does nothing and returns 1.
    virtual int EraseData(CObject * data);

    /// The number of blocks.
    int GetCountOfBlocks();

    /// Copies the header at an index. 1, or 0 for a bad index with `header` untouched.
    int GetBlockHeader(int index, TSDXFBlockHeader * header);

    /// 1 for a good index, 0 for a bad one. The pointer comes by value, so nothing reaches the caller: the
    /// content of a block is read through GetBlockHeader.
    int GetPtrToData(int index, CObject * data);

    /// Calls EraseData for the content of each block and forgets the blocks. Always 1.
    int EraseAllBlocks();

    /// Empties the texts and zeroes the point, the number, the reserved bytes and the pointer.
    void ClearHeaderStructure(TSDXFBlockHeader * header);

  private:
    bool IsIndex(int index) const { return index >= 0 && index < m_blocks.GetSize(); }

    CArray<TSDXFBlockHeader, TSDXFBlockHeader &> m_blocks;
};

#endif
