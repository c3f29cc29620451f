#include "tests/foundation/section_list_fixture.h"

namespace {
int g_answer = 0;

int Answer(char const *, unsigned int)
{
    ++Answering::g_questions;
    return g_answer;
}
}  // namespace

int Answering::g_questions = 0;

Answering::Answering(int answer) : m_before(SetMessageBoxHandler(&Answer))
{
    g_answer = answer;
    g_questions = 0;
}

Answering::~Answering()
{
    SetMessageBoxHandler(m_before);
}
