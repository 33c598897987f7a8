// Every name that devices give a rule or an alarm, with its code.
#include "analyse/AlarmNames.h"
#include "analyse/EventTypeRegistry.h"
#include "analyse/RuleNames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orrery {
namespace {

// clang-format off
constexpr std::string_view kRules = R"(
1 All; 2 CrossLineDetection; 3 CrossRegionDetection; 4 PasteDetection; 5 LeftDetection; 6 StayDetection;
7 WanderDetection; 8 Preservation; 9 MoveDetection; 10 TailDetection; 11 RioterDetection; 12 FireDetection;
13 SmokeDetection; 14 FightDetection; 15 FlowStat; 16 NumberStat; 17 CameraCoverdDetection;
18 CameraMovedDetection; 19 VideoAbnormalDetection; 20 VideoBadDetection; 21 TrafficControl;
22 TrafficAccident; 23 TrafficJunction; 24 TrafficGate; 25 TrafficSnapshot; 26 FaceDetection; 27 TrafficJam;
256 TrafficRunRedLight; 257 TrafficOverLine; 258 TrafficRetrograde; 259 TrafficTurnLeft; 260 TrafficTurnRight;
261 TrafficU-Turn; 262 TrafficOverSpeed; 263 TrafficUnderSpeed; 264 TrafficParking; 265 TrafficWrongRoute;
266 TrafficCrossLane; 267 TrafficOverYellowLine; 268 TrafficDrivingOnShoulder; 270 TrafficYellowInRoute;
270 TrafficYellowPlateInLane; 271 TrafficPedestrainPriority; 272 ElectroSparkDetection; 273 TrafficNoPassing;
274 RunDetection; 275 RetrogradeDetection; 276 InRegionDetection; 277 TakenAwayDetection; 278 ParkingDetection;
279 FaceRecognition; 280 TrafficManualSnap; 281 TrafficFlowStat; 282 TrafficStay; 283 TrafficVehicleInRoute;
284 VideoMotion; 285 AlarmLocal; 286 PrisonerRiseDetection; 287 CrossFenceDetection; 288 TrafficTollGate;
289 DensityDetection; 290 VideoDiagnosieResult; 291 QueueDetection; 292 TrafficVehicleInBusRoute;
293 TrafficBacking; 294 AudioAbnormalDetection; 295 TrafficRunYellowLight; 296 ClimbDetection;
297 LeaveDetection; 298 TrafficParkingOnYellowBox; 299 TrafficParkingSpaceParking;
300 TrafficParkingSpaceNoParking; 301 TrafficPedestrain; 302 TrafficThrow; 303 TrafficIdle; 304 VehicleACC;
305 VehicleTurnover; 306 VehicleCollision; 307 VehicleLargeAngle; 308 TrafficParkingSpaceOverLine;
309 MultiSceneSwitch; 310 TrafficRestrictedPlate; 311 TrafficOverStopLine; 312 TrafficWithoutSafeBelt;
313 TrafficDriverSmoking; 314 TrafficDriverCalling; 315 TrafficPedestrianRunRedLight;
316 TrafficPassNotInOrder; 321 ObjectDetection; 336 AnalogAlarm; 338 Common; 339 VideoBlind; 340 VideoLoss;
341 GetOutBedDetection; 342 PatrolDetection; 343 OnDutyDetection; 344 NoAnswerCall; 345 StorageNotExist;
346 StorageLowSpace; 347 StorageFailure; 348 ProfileAlarmTransmit; 349 VideoStatic; 350 VideoTiming;
351 HeatMap; 352 CitizenIDCard; 353 PicInfo; 354 NetPlayCheck; 355 TrafficJamForbidInto; 356 SnapByTime;
357 PtzPreset; 358 RFIDInfo; 359 StandUpDetection; 360 QSYTrafficCarWeight; 361 TrafficComparePlate;
362 ShootingScoreRecognition; 363 TrafficFcc; 364 Transfinite; 365 SceneChange; 366 LeTrack; 367 ObjectAction;
368 TrafficVideoAnalysePreSnap; 369 EQState; 370 AlarmIPC; 371 Pos; 372 NearDistanceDetection;
373 PersonFeature; 374 NonMotorFeature; 375 TumbleDetection; 512 VideoAnalyse; 513 LinkSD; 514 VehicleAnalyse;
515 Oil4GFlowRate; 516 AccessControl; 517 SnapManual; 518 TrafficEleTagInfo; 519 TiredPhysiological;
520 BusSharpTurn; 521 CitizenPictureCompare; 522 TrafficDriverLowerHead; 523 TrafficDriverLookAround;
524 TrafficDriverLeavePost; 525 ManStandDetection; 526 ManNumDetection; 527 StereoNumberStat;
528 TrafficDriverYawn; 529 NumberStatPlan; 530 HeatMapPlan; 531 CallNoAnswered; 532 IgnoreInvite;
533 HumanTrait; 534 LeHeadDetection; 536 TrafficTurnLeftAfterStraight; 537 TrafficBigBendSmallTurn;
538 RoadConstruction; 539 RoadBlock; 540 TrafficQueueJump; 541 VehicleSuspiciousCar;
542 TrafficTurnRightAfterStraight; 543 TrafficTurnRightAfterPeople; 544 InstallCardReader; 545 DropBoxBadToken;
546 AccOffSnap; 547 XRayDetection; 548 NotClearCar; 549 SOSAlert; 550 OverLoad; 551 NonWorkingTime;
552 TrafficHighBeam; 553 TrafficTruckforbid; 554 DrivingWithoutCard; 555 HighSpeed; 556 CrowdDetection;
556 CrowdDistriMap; 557 TrafficCarDistanceShort; 560 PedestrianJunction; 561 VehicleRecognition;
562 PassChange; 563 TrafficParkingSpaceDetection; 564 TrafficWaitingArea; 633 SmartMotionHuman;
634 SmartMotionVehicle;
)";

// Hexadecimal.
constexpr std::string_view kAlarms = R"(
2119 CoilFault; 2120 OverspeedEvent; 2121 DriverCheckEvent; 2126 EnclosureEvent; 2134 BatteryLowPower;
2135 TemperatureAlarm; 2141 CQDTInfo; 2142 CQDTAlarm; 2143 GPS; 2143 GPSStatus; 2145 StorageLowSpace;
2162 FanSpeedAlarm; 2163 StorageFailure; 2164 RecordFailure; 2165 StorageBreakdown; 2166 VideoInInvalid;
2167 VehicleTurnover; 2168 VehicleCollision; 2169 VehicleConfirmInfo; 2170 VehicleLargeAngle; 2171 Invite;
2175 AlarmLocal; 2176 VideoTiming; 2177 UPSInfoReport; 2178 AudioAbnormalDetection; 2178 AudioAnomaly;
2179 AudioMutation; 2180 TyreInfoEvent; 2182 RegisterOff; 2184 AlarmFalling; 2188 CrossLineDetection;
2189 CrossRegionDetection; 218A LeftDetection; 218B FaceDetection; 218C AlarmIPC; 218D TakenAwayDetection;
218E VideoAbnormalDetection; 218F VideoMotion; 2191 HotPlug; 2192 Oil4GFlowRate; 2193 MoveDetection;
2194 WanderDetection; 2195 CrossFenceDetection; 2196 ParkingDetection; 2197 RioterDetection;
3009 TrafficFlowInfo; 300D YueQingLightingState; 300E ViolatingNoFlyTime; 300F AlarmBoxAlarm; 3010 SOSAlert;
3011 GyroAbnormalAttitude; 3167 StorageNotExist; 3172 PowerFault; 3173 ChassisIntruded; 3174 AlarmExtended;
3175 ArmModeChange; 3176 BypassModeChange; 3177 DoorNotClosed; 3178 BreakIn; 3179 RepeatEnter; 3180 Duress;
3181 AccessControl; 3182 Emergency; 3183 AlarmInputSourceSignal; 3184 AnalogAlarm; 3185 DoorStatus;
3186 AccessSnap; 3187 AlarmClear; 3188 CIDEvent; 3189 Hangup; 318A BankCardInsert; 318B RCEmergencyCall;
318C OpenDoorGroup; 318D Fingerprint; 318F SubSystemStatusChange; 3190 BatteryPower; 3191 BellStatus;
3192 DefenceStatusChange; 3193 TicketStatistic; 3194 LoginFailure; 3195 ModuleLost; 3196 PSTNBreakLine;
3197 AnalogPulse; 3198 MissionConfirm; 3199 DeviceMsgNotify; 319A VehicleStandingOverTime; 319B EnclosureAlarm;
319C GuardDetect; 319D GuardInfoUpdate; 319E NodeActive; 319F VideoStatic; 31A0 RegisterReOnline;
31A1 ISCSIStatus; 31A2 SCADADevAlarm; 31A3 AuxiliaryDevState; 31A4 ParkingCard; 31A5 ProfileAlarmTransmit;
31A6 VehicleACC; 31A7 TrafficSuspiciousCar; 31A8 LockStatus; 31A9 FinaceScheme; 31AA HeatImagingTemper;
31AB IgnoreInvite; 31AC BusSharpTurn; 31AD BusScram; 31AE BusSharpAccelerate; 31AF BusSharpDecelerate;
31B0 AccessControlCardOperate; 31B1 PoliceCheck; 31B3 NewFile; 31B5 FireWarning; 31B6 RecordLoss;
31B7 VideoFrameLoss; 31B8 RecordVolumeFailure; 31B9 SnapUpload; 31BA AudioDetect; 31BB UploadPic;
31BC POSManage; 31BD RemoteControlStatus; 31BE PassengerCardCheck; 31BF SoundAlarm; 31C0 LockBreak;
31C5 UploadPicFail; 31C6 FlowMeterInfo; 31C7 AroudWifiSearch; 31C8 WireLessDevLowPower; 31C9 PtzDiagnoses;
31CA FlashLightFault; 31CB StroboscopicLightFault; 31CC NumberStat; 31CD BufDropFrame; 31CE VideoUnFocus;
31CF DoubleDevVersionAbnormal; 31D0 DCSSwtich; 31D1 RadarConnectState; 31D2 DefenceArmModeChange;
31D3 AlarmSubSystemStatus; 31D4 RFIDInfo; 31D5 SmokeDetection; 31D6 BetweenRulesTemperDiffAlarm;
31D7 TrafficPictureAnalyse; 31D8 HotSpotWarning; 31D9 ColdSpotWarning; 31DA FireWarningInfo;
31DB FaceOverHeating; 31DC SensorAbnormal; 31DE PatientDetection; 31DF RadarHighSpeed; 31E0 PollingAlarm;
31E2 TrafficStrobeState; 31E3 TelephoneCheck; 31E4 PasteDetection; 31E5 ShootingScoreRecognition;
31E6 SwipeOverTime; 31E7 DrivingWithoutCard; 31E8 TrafficPedestrianRunRedLight; 31E9 FightDetection;
31EA Oil4GOverFlow; 31EB AccessIdentify; 31EC PowerSwitcherAlarm; 31ED SceneChange; 31EF AroudWifiVirtualInfo;
31F0 TrafficOverSpeed; 31F1 TrafficUnderSpeed; 31F2 TrafficPedestrain; 31F3 TrafficJam; 31F4 TrafficParking;
31F5 TrafficThrow; 31F6 TrafficRetrograde; 31F7 VTStateUpdate; 31F8 CallNoAnswered; 31FA RetrogradeDetection;
31FB AIOAppConfigEvent; 31FC AlarmRaid; 31FD StorageIPCFailure; 31FE DevStay; 31FF SubWayDoorState;
3200 SubWayPECESwitch; 3201 SubWayFireAlarm; 3202 SubWayEmerHandle; 3203 SubWayCabCover; 3204 SubWayDeraObst;
3205 SubWayPECUCall; 3206 AlarmBox; 3207 DoorClosedManually; 3208 DoorNotClosedLongTime; 3209 UnderVoltage;
320A OverVoltage; 320B AlarmCutLine; 320D WideViewRegion; 320E FibreOpticAbort; 320F TailDetection;
3210 BitRatesOverLimit; 3211 Record; 3212 HighDecibel; 3213 ShakeDetection; 3214 TumbleDetection;
3215 MaliciousAccessControl; 3216 UserIDRegister; 3217 ReverseLock; 3218 UserIDDelete; 3219 DoorBell;
321A WireLessDevFactoryReset; 321B PoliceRecordProgress; 321C PolicePlugin; 321D GpsNotAligned;
321E WireLessNotConnected; 321F Cabinet; 3220 SwitchScreen; 3221 NearDistanceDetection; 3222 ManStandDetection;
3223 ManNumDetection; 3224 MCSGeneralCapacityLow; 3225 MCSDataNodeOffline; 3226 MCSDiskOffline;
3227 MCSDiskSlow; 3228 MCSDiskBroken; 3229 MCSDiskUnknowError; 322A MCSMetadataServerAbnormal;
322B MCSCatalogServerAbnormal; 322C MCSGeneralCapacityResume; 322D MCSDataNodeOnline; 322E MCSDiskOnline;
322F MCSMetadataSlaveOnline; 3230 MCSCatalogServerOnline; 3231 OfflineLogSync; 3232 Upgrade;
3233 LabelInfoAlarm; 3234 TiredPhysiological; 3235 TrafficDriverCalling; 3236 TrafficDriverSmoking;
3237 TrafficDriverLowerHead; 3238 TrafficDriverLookAround; 3239 TrafficDriverLeavePost; 323A TrafficDriverYawn;
323B AutoInspection; 323C TrafficVehiclePosition; 323D FaceVerificationAccessSnap; 323E VideoBlind;
323F DriverNotConfirm; 3240 FaceInfoCollect; 3241 HighSpeed; 3242 VideoLoss; 3243 MPTBaseConnect;
3244 LatestShutDown; 3245 RobotCollision; 3246 RobotFallenDown; 3247 RobotUnrecognized2DCode;
3248 RobotWrong2DCode; 3249 RobotRoadBlocked; 324A RobotFault; 324B RobotOverload; 324C RobotYawException;
324D VideoTalkPath; 324E RobotLoadTimeout; 324F RobotUnLoadTimeout; 3250 RobotMapUpdate; 3251 CGIRecord;
3252 RobotBrake; 3253 RobotManualIntervention; 3254 BatteryTemperature; 3255 TirePressureAlarm;
3256 VTHConflict; 3257 AccessControlBlacklist; 3258 RobotEmergencyStop; 3259 RobotPathPlanFailed;
325A RobotLocalMapUpload; 325B RobotShelfError; 325C RobotSensorError; 325D RobotDerailment;
325E RobotMotorUninit; 325F RobotPreventFalling; 3260 RobotLocationException; 3261 RobotUpgraderFail;
3262 RobotChargingError; 3263 RobotStationChargingError; 3300 UserLock; 3301 DownloadRemoteFile;
3302 NASFileStatus; 3303 CancelCall; 3304 UnAuthorizedMaliciousSwip; 3305 CrowdDetection;
3306 FaceFeatureAbstract; 3307 RecordScheduleChange; 3308 NTPChange;
)";
// clang-format on

using NamedCode = std::pair<std::int32_t, std::string_view>;

std::vector<NamedCode> ListOf(std::string_view text, int base) {
    std::vector<NamedCode> list;
    for (std::size_t at = text.find_first_not_of("\n "); at != std::string_view::npos;) {
        const std::size_t blank = text.find(' ', at);
        const std::size_t end = text.find(';', blank);
        std::int32_t code = 0;
        std::from_chars(text.data() + at, text.data() + blank, code, base);
        list.emplace_back(code, text.substr(blank + 1, end - blank - 1));
        at = text.find_first_not_of("\n ", end + 1);
    }
    return list;
}

TEST(EventTypeNames, EveryNameOfARuleReadsAsItsCode) {
    const auto list = ListOf(kRules, 10);
    ASSERT_EQ(list.size(), 181u);
    for (const auto& [code, name] : list)
        EXPECT_EQ(RuleCodeFromName(name), code) << name;
}

TEST(EventTypeNames, EveryCodeOfARuleIsWrittenByItsName) {
    std::map<std::int32_t, std::string_view> usual;
    for (const auto& [code, name] : ListOf(kRules, 10))
        usual.emplace(code, name);
    usual[270] = "TrafficYellowPlateInLane";
    usual[556] = "CrowdDetection";
    usual[511] = "Traffic*";
    for (const std::int32_t readOnly : {562, 633, 634})
        usual[readOnly] = "All";
    auto inRules = usual;
    inRules[270] = "TrafficYellowInRoute";
    inRules[556] = "CrowdDistriMap";
    const auto nameIn = [](const auto& names, std::int32_t code) {
        const auto found = names.find(code);
        return found == names.end() ? std::string_view("All") : found->second;
    };
    for (std::int32_t code = -2; code < 1200; ++code) {
        EXPECT_EQ(RuleNameOf(code, false), nameIn(usual, code)) << code;
        EXPECT_EQ(RuleNameOf(code, true), nameIn(inRules, code)) << code;
    }
}

TEST(EventTypeNames, EveryAlarmHasItsNameAndCode) {
    const auto list = ListOf(kAlarms, 16);
    ASSERT_EQ(list.size(), 285u);
    ASSERT_EQ(std::size(events::kAlarmNames), list.size());
    for (const NamedCode& named : list) {
        const std::string_view name = named.second;
        const auto* const row = std::find_if(std::begin(events::kAlarmNames), std::end(events::kAlarmNames),
                                             [&](const events::AlarmName& known) { return known.text == name; });
        ASSERT_NE(row, std::end(events::kAlarmNames)) << name;
        EXPECT_EQ(row->code, named.first) << name;
        const bool isReadOnly = name == "GPSStatus" || name == "AudioAnomaly" || name == "TrafficPictureAnalyse";
        EXPECT_EQ(row->written, !isReadOnly) << name;
    }
}

} // namespace
} // namespace orrery
