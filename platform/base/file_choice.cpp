#include "platform/base/file_choice.h"

#include <utility>

namespace {
FileChoiceHandler g_fileChoiceHandler = nullptr;
}

FileChoiceHandler SetFileChoiceHandler(FileChoiceHandler handler)
{
    return std::exchange(g_fileChoiceHandler, handler);
}

int ChooseFile(TSFileChoice const & choice, CString & path)
{
    return g_fileChoiceHandler ? g_fileChoiceHandler(choice, path) : 0;
}
