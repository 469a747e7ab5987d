// Each dedicated key, pressed at home and on pages, of a video controller and of a sending card.
#include "tests/system/keys/keystory.h"
#include "tests/testprogram.h"

class TestStoryKeys : public KeyStory
{
public:
    TestStoryKeys() : KeyStory(keytable::Press::Tap, 8) {}
};

FPD_TEST(TestStoryKeys)
