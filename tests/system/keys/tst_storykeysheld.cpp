// Each dedicated key, held at home and on pages, of a video controller and of a sending card.
#include "tests/system/keys/keystory.h"
#include "tests/testprogram.h"

class TestStoryKeysHeld : public KeyStory
{
public:
    TestStoryKeysHeld() : KeyStory(keytable::Press::Hold, 6) {}
};

FPD_TEST(TestStoryKeysHeld)
