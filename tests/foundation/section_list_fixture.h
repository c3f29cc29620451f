#ifndef KX7_TESTS_SECTION_LIST_FIXTURE_H
#define KX7_TESTS_SECTION_LIST_FIXTURE_H

#include <utility>
#include <vector>

#include "foundation/vard_section_list.h"
#include "platform/base/message_box.h"

using Span = std::pair<double, double>;  // begin and end of a section

/// Answers the list's question while it lives, and counts how often it was put.
class Answering
{
  public:
    explicit Answering(int answer);
    ~Answering();
    Answering(Answering const &) = delete;
    Answering & operator=(Answering const &) = delete;

    static int g_questions;

  private:
    MessageBoxHandler m_before;
};

inline CVARDSectionObj * NewSection(double begin, double end)
{
    auto * const section = new CVARDSectionObj;
    section->SetSection(begin, end - begin);
    return section;
}

/// Begins and ends of all sections, in order.
inline std::vector<Span> SpansOf(CVARDSectionList const & list)
{
    std::vector<Span> spans;
    for (POSITION position = list.GetHeadPosition(); position;) {
        CVARDSectionObj const * const section = list.GetSection(position);
        spans.emplace_back(section->GetBeginSection(), section->GetEndSection());
        list.GetNext(position);
    }
    return spans;
}

#endif
