// The one way from a Help button to its topic.
#include "host/help.h"

void showHelp(const char* topicId) {
    if (const auto help = Ref<IHelpService>::take(Get_IHelpService()))
        help->showTopic(topicId);
}
