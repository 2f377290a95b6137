#include "extension/actions/duplicates/BriefThread.h"

#include <cstdlib>

namespace MenuExtension::Duplicates {

BriefThread::~BriefThread()
{
    constexpr std::chrono::milliseconds moment{80};
    m_stop.request_stop();
    // What is left then is a window that nobody sees any more.
    if (m_end.valid() && m_end.wait_for(moment) != std::future_status::ready)
        std::_Exit(EXIT_SUCCESS);
}

} // namespace MenuExtension::Duplicates
