#include "platform/base/archive.h"

#include <algorithm>
#include <climits>
#include <string>

namespace {
constexpr int kSmallestBuffer = 128;  // bytes

// Marks of the text form: a wider length follows the mark.
constexpr BYTE kWordLengthFollows = 0xFF;
constexpr WORD kWideTextFollows = 0xFFFE;  // text of 16-bit characters, which is not read here
constexpr WORD kDwordFollows = 0xFFFF;     // also the mark of a wide count

// Texts are read in pieces of this size, so that a forged length can't drive the allocation.
constexpr std::size_t kTextPiece = 65536;

void WriteTextLength(CArchive & archive, std::size_t length)
{
    if (length < kWordLengthFollows)
        archive << static_cast<BYTE>(length);
    else if (length < kWideTextFollows)
        archive << kWordLengthFollows << static_cast<WORD>(length);
    else
        archive << kWordLengthFollows << kDwordFollows << static_cast<DWORD>(length);
}

// Length of the text that follows; the form that isn't read here counts as another version of the text.
DWORD ReadTextLength(CArchive & archive)
{
    BYTE small = 0;
    archive >> small;
    if (small != kWordLengthFollows)
        return small;
    WORD medium = 0;
    archive >> medium;
    if (medium == kWideTextFollows)
        AfxThrowArchiveException(CArchiveException::badSchema);
    if (medium != kDwordFollows)
        return medium;
    DWORD large = 0;
    archive >> large;
    return large;
}
}  // namespace

CArchive::CArchive(CFile * file, UINT mode, int bufferSize)
    : m_file(file),
      m_isLoading((mode & load) != 0),
      m_buffer(static_cast<std::size_t>(std::max(bufferSize, kSmallestBuffer)))
{
}

CArchive::~CArchive()
{
    try {
        Close();
    } catch (CException * exception) {
        exception->Delete();
    }
}

void CArchive::Throw(int cause) const
{
    AfxThrowArchiveException(cause, m_file ? m_file->GetFilePath() : CString());
}

void CArchive::RequireLoading() const
{
    if (!m_isLoading)
        Throw(CArchiveException::writeOnly);
    if (!m_file)
        Throw(CArchiveException::genericException);
}

void CArchive::RequireStoring() const
{
    if (m_isLoading)
        Throw(CArchiveException::readOnly);
    if (!m_file)
        Throw(CArchiveException::genericException);
}

void CArchive::Flush()
{
    if (!m_file)
        return;
    std::size_t const unread = m_end - std::min(m_position, m_end);
    std::size_t const unwritten = m_isLoading ? 0 : m_position;
    m_position = m_end = 0;
    if (unread > 0)
        m_file->Seek(-static_cast<LONGLONG>(unread), CFile::current);
    if (unwritten > 0)
        m_file->Write(m_buffer.data(), static_cast<UINT>(unwritten));
    if (!m_isLoading)
        m_file->Flush();
}

void CArchive::Close()
{
    // Let go of the file first, so that a failed flush isn't tried again.
    std::unique_ptr<CArchive, void (*)(CArchive *)> const letGo(
        this, [](CArchive * self) { self->m_file = nullptr; });
    Flush();
}

bool CArchive::FillBuffer()
{
    m_position = m_end = 0;
    m_end = m_file->Read(m_buffer.data(), static_cast<UINT>(m_buffer.size()));
    return m_end > 0;
}

UINT CArchive::Read(void * bytes, UINT count)
{
    RequireLoading();
    auto * target = static_cast<BYTE *>(bytes);
    UINT left = count;
    while (left > 0 && (m_position < m_end || FillBuffer())) {
        std::size_t const piece = std::min<std::size_t>(left, m_end - m_position);
        std::memcpy(target, m_buffer.data() + m_position, piece);
        m_position += piece;
        target += piece;
        left -= static_cast<UINT>(piece);
    }
    return count - left;
}

void CArchive::LoadBytesSlowly(void * bytes, std::size_t count)
{
    if (Read(bytes, static_cast<UINT>(count)) < count)
        Throw(CArchiveException::endOfFile);
}

void CArchive::Write(void const * bytes, UINT count)
{
    RequireStoring();
    auto const * source = static_cast<BYTE const *>(bytes);
    while (count > 0) {
        if (m_position == m_buffer.size()) {
            m_position = 0;
            m_file->Write(m_buffer.data(), static_cast<UINT>(m_buffer.size()));
        }
        std::size_t const piece = std::min<std::size_t>(count, m_buffer.size() - m_position);
        std::memcpy(m_buffer.data() + m_position, source, piece);
        m_position += piece;
        source += piece;
        count -= static_cast<UINT>(piece);
    }
}

void CArchive::WriteString(char const * text)
{
    if (text)
        Write(text, static_cast<UINT>(std::strlen(text)));
}

BOOL CArchive::ReadString(CString & line)
{
    RequireLoading();
    // As a rule the buffer holds the whole line.
    BYTE const * const first = m_buffer.data() + m_position;
    auto const * lineFeed = static_cast<BYTE const *>(std::memchr(first, '\n', m_end - m_position));
    if (!lineFeed)
        return ReadStringInPieces(line);
    auto const length = static_cast<std::size_t>(lineFeed - first);
    m_position += length + 1;
    bool const hasReturn = length > 0 && first[length - 1] == '\r';
    line.Assign({reinterpret_cast<char const *>(first), hasReturn ? length - 1 : length});
    return TRUE;
}

BOOL CArchive::ReadStringInPieces(CString & line)
{
    std::string text;
    bool isEnded = false;
    bool hasRead = false;
    while (!isEnded && (m_position < m_end || FillBuffer())) {
        auto const first = m_buffer.begin() + static_cast<std::ptrdiff_t>(m_position);
        auto const last = m_buffer.begin() + static_cast<std::ptrdiff_t>(m_end);
        auto const lineFeed = std::find(first, last, '\n');
        text.append(first, lineFeed);
        isEnded = lineFeed != last;
        m_position += static_cast<std::size_t>(lineFeed - first) + (isEnded ? 1 : 0);
        hasRead = true;
    }
    if (isEnded && text.ends_with('\r'))
        text.pop_back();
    line.Assign(text);
    return hasRead ? TRUE : FALSE;
}

void CArchive::WriteCount(DWORD count)
{
    if (count < kDwordFollows)
        *this << static_cast<WORD>(count);
    else
        *this << kDwordFollows << count;
}

DWORD CArchive::ReadCount()
{
    WORD small = 0;
    *this >> small;
    if (small != kDwordFollows)
        return small;
    DWORD large = 0;
    *this >> large;
    return large;
}

CArchive & operator<<(CArchive & archive, CString const & text)
{
    std::string_view const bytes = text.View();
    WriteTextLength(archive, bytes.size());
    archive.Write(bytes.data(), static_cast<UINT>(bytes.size()));
    return archive;
}

CArchive & operator>>(CArchive & archive, CString & text)
{
    std::size_t const length = ReadTextLength(archive);
    std::string bytes;
    while (bytes.size() < length) {
        std::size_t const have = bytes.size();
        bytes.resize(std::min(length, have + kTextPiece));
        archive.LoadBytes(bytes.data() + have, bytes.size() - have);
    }
    text = CString(std::string_view(bytes));
    return archive;
}
