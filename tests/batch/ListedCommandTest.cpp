#include "batch/ListedCommand.h"

#include <gtest/gtest.h>

TEST(ListedCommand, AsksForOneSetInWordsThatAShellReads) {
    BatchOptions options;
    options.sweeps = {Sweep::read("K13=0.25:0.5:2")};
    options.words = {"--zoom=2", "--fit"};
    options.outputs = {{Output::Kind::image, Document::X, "an x's {K13}.png"},
                       {Output::Kind::text, Document::helix, "h{K13}.txt"},
                       {Output::Kind::scene, Document::M, "m{K13}.iv"}};
    const auto sets = setsOf(options.parameters, options.sweeps);
    EXPECT_EQ(ListedCommand::of(options, sets[1], "bin/make it"),
              "'bin/make it' --zoom=2 --fit --K13=0.5 '--image=X=an x'\\''s 0.5.png' "
              "--text=helix=h0.5.txt --scene=M=m0.5.iv");
}
