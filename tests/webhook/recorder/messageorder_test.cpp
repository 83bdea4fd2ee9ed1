#include "webhook/recorder/messageorder.h"

#include <gtest/gtest.h>

#include "shared/wait.h"
#include "support/printing.h"

using Corvex::Webhook::MessageOrder;

namespace {

TEST(MessageOrder, GivesMessagesInTheOrderOfTheirStampsAndHoldsNoneUp) {
  MessageOrder order(20);
  order.add("logevent7&event=c");
  order.add("logevent5&event=a");
  order.add("logevent5&event=b");
  EXPECT_FALSE(order.isNextDue());
  ASSERT_TRUE(Corvex::poll(10000, 1, [&order] { return order.isNextDue(); }));
  // A page whose clock runs backwards.
  order.add("logevent4&event=late");
  for (const char* text : {"logevent4&event=late", "logevent5&event=a", "logevent5&event=b", "logevent7&event=c"}) {
    ASSERT_TRUE(order.isNextDue());
    EXPECT_EQ(order.takeNext(), text);
  }
  EXPECT_TRUE(order.isEmpty());
}

}  // namespace
