#include "protocol/renderer_files.h"
#include "renderer/replies.h"
#include "support/folder.h"
#include "support/run_time_errors.h"

using namespace ferna;
using ferna::renderer::Replies;
using ferna::testing::errorNumberOf;
using ferna::testing::Folder;

namespace {

class RepliesOfARun : public ::testing::Test {
protected:
    QString path() const { return folder.path(QStringLiteral(".")); }

    Folder folder;
};

TEST_F(RepliesOfARun, TheOneOfAFailureStandsUntilTheRunHasDoneItsWork) {
    Replies replies(path());
    replies.failureFirst(12);
    replies.prepareSuccess(14);
    EXPECT_EQ(folder.read(wyd::replyFile), " 0 , 12 \r\n");
    replies.succeed();
    EXPECT_EQ(folder.read(wyd::replyFile), " 1 , 14 \r\n");
    EXPECT_EQ(folder.names(), QStringList(wyd::replyFile));
}

TEST_F(RepliesOfARun, TheOneOfAFailureIsAllThatAFailedRunLeaves) {
    {
        Replies early(path());
        early.failureFirst(12);
    }
    EXPECT_EQ(folder.read(wyd::replyFile), " 0 , 12 \r\n");
    {
        Replies late(path());
        late.failureFirst(15);
        late.prepareSuccess(17);
    }
    EXPECT_EQ(folder.read(wyd::replyFile), " 0 , 15 \r\n");
    EXPECT_EQ(folder.names(), QStringList(wyd::replyFile));
}

TEST_F(RepliesOfARun, AnEarlierOneStaysWhereNoFailureIsTold) {
    folder.write(wyd::replyFile, "1, 7\r\n");
    { Replies(path()).prepareSuccess(14); }
    EXPECT_EQ(folder.read(wyd::replyFile), "1, 7\r\n");
}

TEST_F(RepliesOfARun, ThatCannotBeWrittenEndItBeforeItsPagesAreDelivered) {
    Replies replies(folder.path(QStringLiteral("brak")));
    replies.failureFirst(12);
    EXPECT_EQ(errorNumberOf([&] { replies.prepareSuccess(14); }), error::PathNotFound);
}

} // namespace
