// The Wizard's InicEsp forgets the marker children found before, which no golden shows; its
// placement cases are the goldens of tests/scenarios/wizard.
#include <gtest/gtest.h>

#include "../OpenCall.h"
#include "wizard/Wizard.h"

namespace {

TEST(WizardSetUp, InicEspForgetsMarkerChildren) {
    tests::OpenCall call{sim::World{}};
    wizard::Wizard wizard{call.env};
    auto& mv = common::modVariables();
    mv.hayHijoEsp.fill(true);
    wizard.InicEsp();
    for (bool hay : mv.hayHijoEsp) EXPECT_FALSE(hay);
    EXPECT_EQ(mv.codigosMO.size(), 8u);
}

}  // namespace
