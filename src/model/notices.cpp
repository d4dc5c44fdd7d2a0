#include "model/notices.h"

#include <algorithm>
#include <utility>

namespace mirtane {

void Notices::post(Notice notice)
{
    settle(notice.matter);
    standing_.push_back(std::move(notice));
}

void Notices::postBehind(Notice notice)
{
    settle(notice.matter);
    standing_.insert(standing_.begin(), std::move(notice));
}

void Notices::settle(Matter matter)
{
    standing_.erase(std::remove_if(standing_.begin(), standing_.end(),
                                   [matter](const Notice& one) { return one.matter == matter; }),
                    standing_.end());
}

bool Notices::tells(Matter matter) const
{
    return std::any_of(standing_.begin(), standing_.end(),
                       [matter](const Notice& one) { return one.matter == matter; });
}

void Notices::settleOfDrawing()
{
    for (const Matter matter :
         {Matter::leftOut, Matter::tableFull, Matter::fileChanged, Matter::openElsewhere,
          Matter::fileInTheWay, Matter::notRead, Matter::moved, Matter::noUnits}) {
        settle(matter);
    }
}

const Notice* Notices::shown() const
{
    return standing_.empty() ? nullptr : &standing_.back();
}

void showNotice(Controls& controls, const Notices& notices)
{
    const Notice* const notice = notices.shown();
    controls[ids::notice].visible = notice != nullptr;
    controls[ids::notice].caption = notice != nullptr ? notice->sentence : "";
    const ControlId buttons[] = {ids::noticeFirst, ids::noticeSecond};
    for (std::size_t i = 0; i < std::size(buttons); ++i) {
        Control& button = controls[buttons[i]];
        button.visible = notice != nullptr && i < notice->buttons.size();
        button.caption = button.visible ? notice->buttons[i].caption : "";
    }
}

} // namespace mirtane
