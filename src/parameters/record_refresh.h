// The fields of the ECU's record that follow the parameter image.
#pragma once

namespace lorimet {

struct ECUData;
struct ParameterImage;

// The fields that nobody but the program fills: vehicle type, lift and flag tables from EOL1, and
// the three identity texts from EOL7.
void RefreshVehicleFields(const ParameterImage& image, ECUData& ecu_data);
void RefreshIdentityFields(const ParameterImage& image, ECUData& ecu_data);

// The sensors of each axle from EOL1.
void RefreshAxleSensors(const ParameterImage& image, ECUData& ecu_data);

// All that a connection would have filled, from EOL1 and EOL7 of a file.
void RefreshConfiguration(const ParameterImage& image, ECUData& ecu_data);

// The fields that the end-of-line tests use, from the image as it is to be written.
void RefreshTestFields(const ParameterImage& image, ECUData& ecu_data);

}  // namespace lorimet
