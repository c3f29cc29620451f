#include "platform/base/file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>
#include <string>
#include <system_error>

#include "platform/base/code_page.h"
#include "platform/base/file_system.h"

IMPLEMENT_DYNAMIC(CFile, CObject)
IMPLEMENT_DYNAMIC(CMemFile, CFile)
IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace {
constexpr int kEndOfText = 26;  // ends the text of a file in text mode

std::FILE * OpenStream(std::filesystem::path const & path, char const * mode)
{
#if defined(_WIN32)
    return _wfopen(path.c_str(), std::wstring(mode, mode + std::strlen(mode)).c_str());
#else
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored)) {
        errno = EISDIR;  // the system would open it and fail at the first read
        return nullptr;
    }
    return std::fopen(path.c_str(), mode);
#endif
}

std::FILE * OpenStream(std::filesystem::path const & path, UINT flags)
{
    bool const writes = (flags & (CFile::modeWrite | CFile::modeReadWrite)) != 0;
    if (!(flags & CFile::modeCreate))
        return OpenStream(path, writes ? "r+b" : "rb");
    std::error_code ignored;
    bool const keeps = (flags & CFile::modeNoTruncate) && std::filesystem::exists(path, ignored);
    return OpenStream(path, keeps ? "r+b" : "w+b");
}

int Move(std::FILE * stream, LONGLONG offset, int from)
{
#if defined(_WIN32)
    return _fseeki64(stream, offset, from);
#else
    return fseeko(stream, offset, from);
#endif
}

LONGLONG PositionOf(std::FILE * stream)
{
#if defined(_WIN32)
    return _ftelli64(stream);
#else
    return ftello(stream);
#endif
}
}  // namespace

std::filesystem::path SystemPath(char const * path)
{
    std::string text = Utf8From1250(path ? path : "");
#if !defined(_WIN32)
    if (text.size() >= 2 && text[1] == ':')
        text.replace(0, 2, DriveFolder(text[0]));
    std::ranges::replace(text, '\\', '/');
#endif
    return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

CString TextOfSystemPath(std::filesystem::path const & path)
{
    std::u8string const text = path.u8string();
    return CString(Text1250FromUtf8(std::string(text.begin(), text.end())));
}

CFile::CFile() = default;

CFile::CFile(char const * path, UINT flags)
{
    CFileException error;
    if (!CFile::Open(path, flags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CFile::~CFile() = default;

BOOL CFile::Open(char const * path, UINT flags, CFileException * error)
{
    m_lastUse = Use::nothing;
    m_strFilePath = path;
    m_stream.reset();
    m_stream.reset(OpenStream(SystemPath(path), flags));
    if (m_stream) {
        std::setvbuf(m_stream.get(), nullptr, _IONBF, 0);
        return TRUE;
    }
    if (error) {
        error->m_lOsError = errno;
        error->m_cause = CFileException::ErrnoToException(errno);
        error->m_strFileName = path;
    }
    m_strFilePath.Empty();
    return FALSE;
}

void CFile::Close()
{
    if (m_stream && std::fclose(m_stream.release()) != 0)
        ThrowErrno();
    m_strFilePath.Empty();
}

std::FILE * CFile::Stream(Use use) const
{
    if (!m_stream)
        AfxThrowFileException(CFileException::invalidFile, EBADF);
    if (use != m_lastUse && m_lastUse != Use::nothing && Move(m_stream.get(), 0, SEEK_CUR) != 0)
        ThrowErrno();
    m_lastUse = use;
    return m_stream.get();
}

void CFile::ThrowErrno() const
{
    AfxThrowFileException(CFileException::ErrnoToException(errno), errno, m_strFilePath);
}

UINT CFile::Read(void * buffer, UINT count)
{
    std::FILE * stream = Stream(Use::reading);
    auto const read = std::fread(buffer, 1, count, stream);
    if (read < count && std::ferror(stream))
        ThrowErrno();
    return static_cast<UINT>(read);
}

void CFile::Write(void const * buffer, UINT count)
{
    if (std::fwrite(buffer, 1, count, Stream(Use::writing)) < count)
        ThrowErrno();
}

void CFile::Flush()
{
    if (std::fflush(Stream(m_lastUse)) != 0)
        ThrowErrno();
}

ULONGLONG CFile::Seek(LONGLONG offset, UINT from)
{
    static_assert(SEEK_SET == begin && SEEK_CUR == current && SEEK_END == end);
    if (Move(Stream(Use::nothing), offset, static_cast<int>(from)) != 0)
        ThrowErrno();
    return GetPosition();
}

ULONGLONG CFile::GetPosition() const
{
    return static_cast<ULONGLONG>(PositionOf(Stream(m_lastUse)));
}

ULONGLONG CFile::GetLength() const
{
    std::FILE * stream = Stream(Use::nothing);
    auto const here = PositionOf(stream);
    Move(stream, 0, SEEK_END);
    auto const length = PositionOf(stream);
    Move(stream, here, SEEK_SET);
    return static_cast<ULONGLONG>(length);
}

CMemFile::CMemFile(void const * bytes, std::size_t count)
    : m_bytes(static_cast<BYTE const *>(bytes), static_cast<BYTE const *>(bytes) + count)
{
}

BOOL CMemFile::Open(char const *, UINT, CFileException *)
{
    return FALSE;
}

void CMemFile::Close()
{
    m_bytes.clear();
    m_position = 0;
}

UINT CMemFile::Read(void * buffer, UINT count)
{
    std::size_t const left = m_bytes.size() - std::min(m_position, m_bytes.size());
    std::size_t const read = std::min<std::size_t>(count, left);
    if (read > 0)
        std::memcpy(buffer, m_bytes.data() + m_position, read);
    m_position += read;
    return static_cast<UINT>(read);
}

void CMemFile::Write(void const * buffer, UINT count)
{
    if (count == 0)
        return;
    try {
        m_bytes.resize(std::max(m_bytes.size(), m_position + count));
    } catch (std::exception const &)  // no memory, or more than any memory
    {
        AfxThrowMemoryException();
    }
    std::memcpy(m_bytes.data() + m_position, buffer, count);
    m_position += count;
}

ULONGLONG CMemFile::Seek(LONGLONG offset, UINT from)
{
    std::size_t const base = from == begin ? 0 : from == current ? m_position : m_bytes.size();
    LONGLONG position = 0;
    if (__builtin_add_overflow(static_cast<LONGLONG>(base), offset, &position) || position < 0)
        AfxThrowFileException(CFileException::badSeek);
    m_position = static_cast<std::size_t>(position);
    return m_position;
}

CStdioFile::CStdioFile(char const * path, UINT flags)
{
    CFileException error;
    if (!CStdioFile::Open(path, flags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

BOOL CStdioFile::Open(char const * path, UINT flags, CFileException * error)
{
    m_isText = !(flags & typeBinary);
    if (!CFile::Open(path, flags, error))
        return FALSE;
    std::setvbuf(m_stream.get(), nullptr, _IOFBF, BUFSIZ);
    return TRUE;
}

int CStdioFile::NextCharacter()
{
    std::FILE * stream = m_stream.get();
    int const character = std::getc(stream);
    if (!m_isText)
        return character;
    if (character == kEndOfText) {
        std::ungetc(character, stream);
        return EOF;
    }
    if (character != '\r')
        return character;
    int const next = std::getc(stream);
    if (next == '\n')
        return next;
    std::ungetc(next, stream);
    return character;
}

UINT CStdioFile::Read(void * buffer, UINT count)
{
    std::FILE * stream = Stream(Use::reading);
    UINT read = 0;
    for (int character; read < count && (character = NextCharacter()) != EOF; ++read)
        static_cast<char *>(buffer)[read] = static_cast<char>(character);
    if (std::ferror(stream))
        ThrowErrno();
    return read;
}

void CStdioFile::Write(void const * buffer, UINT count)
{
    if (!m_isText)
        return CFile::Write(buffer, count);
    std::FILE * stream = Stream(Use::writing);
    for (char const character : std::span(static_cast<char const *>(buffer), count))
        if ((character == '\n' && std::putc('\r', stream) == EOF) || std::putc(character, stream) == EOF)
            ThrowErrno();
}

BOOL CStdioFile::ReadString(CString & line)
{
    std::FILE * stream = Stream(Use::reading);
    std::string text;
    int character = NextCharacter();
    bool const isEnd = character == EOF;
    for (; character != EOF && character != '\n'; character = NextCharacter())
        text += static_cast<char>(character);
    if (std::ferror(stream))
        ThrowErrno();
    line = CString(std::string_view(text));
    return isEnd ? FALSE : TRUE;
}

void CStdioFile::WriteString(char const * text)
{
    if (text)
        Write(text, static_cast<UINT>(std::strlen(text)));
}
