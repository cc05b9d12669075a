#pragma once

#include "parser/grammar/widget_family.h"

namespace pozhil {

/// Messages: what appears over the page for a while.
class MessageGrammar : public WidgetFamily {
public:
    using WidgetFamily::WidgetFamily;

    /// எச்சரிக்கை ( items ) [ ( items ) ]
    WidgetPtr parseAlert(const Token& word);

    /// அறிவிப்பு_பட்டை ( properties )
    WidgetPtr parseSnackBar(const Token& word);

private:
    void parseAlertItems(WidgetNode& alert);
    void parseSnackBarItem(SnackBarNode& bar);
    void parseSnackBarValue(SnackBarNode& bar, const std::string& key);
};

} // namespace pozhil
