// What every Registry promises, told against a harness with this member:
//   Registry& registry();  with nothing in it
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/Registry.h"

namespace vantrel {

template <class Harness>
struct RegistryContract : testing::Test {
  void write(const std::string& path, const std::string& name, const std::string& value) {
    registry.write(RegistryRoot::currentUser, path, name, RegistryType::text, value);
  }
  std::string read(const std::string& path, const std::string& name) {
    return registry.read(RegistryRoot::currentUser, path, name).value_or("nothing");
  }

  Harness harness;
  Registry& registry = harness.registry();
};
TYPED_TEST_SUITE_P(RegistryContract);

TYPED_TEST_P(RegistryContract, a_value_is_read_as_it_was_last_written_under_its_root_path_and_name_in_any_capitals) {
  for (const std::string value : {"one", " ", "", " \x80 = [x] ; \"\xFF\" "}) {
    this->write("Software\\Some One\\Key", "Value Name", value);
    EXPECT_EQ(this->read("SOFTWARE\\some one\\KEY", "VALUE name"), value);
  }
  EXPECT_EQ(this->read("Software\\Some One", "Value Name"), "nothing");
  EXPECT_EQ(this->read("Software\\Some One\\Key", "Value"), "nothing");
  EXPECT_FALSE(this->registry.read(RegistryRoot::localMachine, "Software\\Some One\\Key", "Value Name"));
}

TYPED_TEST_P(RegistryContract, an_empty_name_is_the_default_value_and_a_long_value_is_cut_when_it_is_read) {
  this->write("halo\\shell\\open\\command", "named", "other");
  EXPECT_EQ(this->read("halo\\shell\\open\\command", ""), "nothing");
  this->write("halo\\shell\\open\\command", "", std::string(2047, 'x') + "yz");
  EXPECT_EQ(this->read("halo\\shell\\open\\command", ""), std::string(2047, 'x') + "y");
}

REGISTER_TYPED_TEST_SUITE_P(RegistryContract,
                            a_value_is_read_as_it_was_last_written_under_its_root_path_and_name_in_any_capitals,
                            an_empty_name_is_the_default_value_and_a_long_value_is_cut_when_it_is_read);

}  // namespace vantrel
