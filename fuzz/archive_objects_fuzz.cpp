// Reads objects from arbitrary bytes: trees whose nodes own their children and hold texts and bytes. Nothing
// may crash, leak, or take much more memory than the input has.
#include <cstddef>
#include <cstdint>
#include <memory>

#include "platform/base/archive.h"
#include "platform/base/collections.h"

namespace {
class Tree : public CObject
{
    DECLARE_SERIAL(Tree)

    ~Tree() override
    {
        for (POSITION position = m_children.GetHeadPosition(); position;)
            delete m_children.GetNext(position);
    }

    void Serialize(CArchive & archive) override
    {
        archive >> m_name;
        m_lines.Serialize(archive);
        m_bytes.Serialize(archive);
        CArchive::OwnedReading const owned(archive, RUNTIME_CLASS(Tree));
        m_children.Serialize(archive);
    }

  private:
    CString m_name;
    CStringArray m_lines;
    CByteArray m_bytes;
    CObList m_children;
};

IMPLEMENT_SERIAL(Tree, CObject, 1)
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    CMemFile file(data, size);
    CArchive archive(&file, CArchive::load);
    try {
        while (file.GetPosition() < size || size == 0)
            std::unique_ptr<CObject> const tree(archive.ReadObject(RUNTIME_CLASS(Tree)));
    } catch (CArchiveException * exception) {
        exception->Delete();
    }
    return 0;
}
