//Maya ASCII 2016 scene
//Name: crowd_shot.ma
//Last modified: Mon, Mar 07, 2016 10:12:31 AM
//Codeset: UTF-8
requires maya "2016";
requires -nodeType "CrowdGetUserData3Delight" -nodeType "CrowdGetUserDataVRay"
		 -nodeType "CrowdHSLShaderVRay" -nodeType "CrowdProxyRendermanStudio"
		 -nodeType "CrowdProxyVRay" -nodeType "CrowdRenderManagerNode"
		 -nodeType "CrowdSwitchShader3Delight" -nodeType "CrowdSwitchShaderVRay"
		 "tvxCrowdRender" "2.5.0.1";
currentUnit -l centimeter -a degree -t film;
fileInfo "application" "maya";
fileInfo "product" "Maya 2016";
fileInfo "version" "2016";
fileInfo "osv" "Linux 3.10.0-327.el7.x86_64";
createNode transform -s -n "persp";
	rename -uid "CCC1A295-537E-7AEB-9A8B-B76929860256";
	setAttr ".v" no;
	setAttr ".t" -type "double3" 11 13.5 24 ;
	setAttr ".r" -type "double3" -26.28398192850025 21.68463835825747 0 ;
createNode camera -s -n "perspShape" -p "persp";
	rename -uid "C10257F9-A629-AB9D-53A7-DB6204D98D4F";
	setAttr -k off ".v" no;
	setAttr ".fl" 34.999999999999993;
	setAttr ".coi" 30.486390406212408;
	setAttr ".imn" -type "string" "persp";
	setAttr ".den" -type "string" "persp_depth";
	setAttr ".man" -type "string" "persp_mask";
createNode transform -s -n "top";
	rename -uid "487CBA4A-0CBA-804D-54A0-AC8E3E6B17B8";
	setAttr ".v" no;
	setAttr ".t" -type "double3" 0 100.09999999999999 0 ;
	setAttr ".r" -type "double3" -90 0 0 ;
createNode camera -s -n "topShape" -p "top";
	rename -uid "25F11E4C-DCB1-A53C-212A-40FD42944928";
	setAttr -k off ".v" no;
	setAttr ".rnd" no;
	setAttr ".coi" 100.1;
	setAttr ".ow" 30;
	setAttr ".imn" -type "string" "top";
	setAttr ".den" -type "string" "top_depth";
	setAttr ".man" -type "string" "top_mask";
	setAttr ".o" yes;
createNode transform -s -n "front";
	rename -uid "ECE1B501-11B3-6503-149D-7434FA978899";
	setAttr ".v" no;
	setAttr ".t" -type "double3" 0 0 100.09999999999999 ;
createNode camera -s -n "frontShape" -p "front";
	rename -uid "504385F7-F0EC-C32B-8244-E9EF03D21314";
	setAttr -k off ".v" no;
	setAttr ".rnd" no;
	setAttr ".coi" 100.1;
	setAttr ".ow" 30;
	setAttr ".imn" -type "string" "front";
	setAttr ".den" -type "string" "front_depth";
	setAttr ".man" -type "string" "front_mask";
	setAttr ".o" yes;
createNode transform -s -n "side";
	rename -uid "05C2638C-82D5-EEAD-D2D3-9A1EF365CE5C";
	setAttr ".v" no;
	setAttr ".t" -type "double3" 100.09999999999999 0 0 ;
	setAttr ".r" -type "double3" 0 90 0 ;
createNode camera -s -n "sideShape" -p "side";
	rename -uid "295C9095-7CC5-CB8D-EB68-BAFABF6C4EFB";
	setAttr -k off ".v" no;
	setAttr ".rnd" no;
	setAttr ".coi" 100.1;
	setAttr ".ow" 30;
	setAttr ".imn" -type "string" "side";
	setAttr ".den" -type "string" "side_depth";
	setAttr ".man" -type "string" "side_mask";
	setAttr ".o" yes;
createNode transform -n "stage";
	rename -uid "4B9B0E9F-0ED0-082A-6EBB-460604225550";
	setAttr ".t" -type "double3" 0 0 -5 ;
createNode mesh -n "stageShape" -p "stage";
	rename -uid "0107C6B9-4283-DFB7-8FD2-837C4614C6B1";
	setAttr -k off ".v";
	setAttr ".vir" yes;
	setAttr ".vif" yes;
	setAttr ".uvst[0].uvsn" -type "string" "map1";
	setAttr -s 4 ".uvst[0].uvsp[0:3]" -type "float2" 0 0 1 0 1 1 0 1;
	setAttr ".cuvs" -type "string" "map1";
	setAttr ".dcc" -type "string" "Ambient+Diffuse";
	setAttr ".covm[0]"  0 1 1;
	setAttr ".cdvm[0]"  0 1 1;
	setAttr -s 16 ".vt[0:15]"  -2.2 0 1.3 2.2 0 1.3 -2.2 0.8 1.3 2.2 0.8 1.3 -2.2
		 0.8 -1.3 2.2 0.8 -1.3 -2.2 0 -1.3 2.2 0 -1.3 -2.2 0.8 -1.2 2.2 0.8 -1.2
		 -2.2 3.6 -1.2 2.2 3.6 -1.2 -2.2 3.6 -1.3 2.2 3.6 -1.3 -2.2 0.8 -1.3 2.2 0.8
		 -1.3;
	setAttr -s 24 ".ed[0:23]"  0 1 0 2 3 0 4 5 0 6 7 0 0 2 0 1 3 0 2 4 0 3 5 0 4
		 6 0 5 7 0 6 0 0 7 1 0 8 9 0 10 11 0 12 13 0 14 15 0 8 10 0 9 11 0 10 12 0
		 11 13 0 12 14 0 13 15 0 14 8 0 15 9 0;
	setAttr -s 12 -ch 48 ".fc[0:11]" -type "polyFaces" 
		f 4 0 5 -2 -5
		mu 0 4 0 1 2 3
		f 4 1 7 -3 -7
		mu 0 4 0 1 2 3
		f 4 2 9 -4 -9
		mu 0 4 0 1 2 3
		f 4 3 11 -1 -11
		mu 0 4 0 1 2 3
		f 4 -12 -10 -8 -6
		mu 0 4 0 1 2 3
		f 4 10 4 6 8
		mu 0 4 0 1 2 3
		f 4 12 17 -14 -17
		mu 0 4 0 1 2 3
		f 4 13 19 -15 -19
		mu 0 4 0 1 2 3
		f 4 14 21 -16 -21
		mu 0 4 0 1 2 3
		f 4 15 23 -13 -23
		mu 0 4 0 1 2 3
		f 4 -24 -22 -20 -18
		mu 0 4 0 1 2 3
		f 4 22 16 18 20
		mu 0 4 0 1 2 3;
	setAttr ".cd" -type "dataPolyComponent" Index_Data Edge 0 ;
	setAttr ".cvd" -type "dataPolyComponent" Index_Data Vertex 0 ;
	setAttr ".pd[0]" -type "dataPolyComponent" Index_Data UV 0 ;
	setAttr ".hfd" -type "dataPolyComponent" Index_Data Face 0 ;
createNode transform -n "crowd";
	rename -uid "BF89F5A0-BAC0-8C55-5FF7-08CC4E89B85E";
createNode transform -n "row1" -p "crowd";
	rename -uid "768F6CD9-9DA1-1F4A-6240-083AF5A9445A";
createNode transform -n "figure1" -p "|crowd|row1";
	rename -uid "A69FDFA5-78D7-A281-69D4-A2D4D149D64C";
	setAttr ".t" -type "double3" -4.43 0 -5.29 ;
	setAttr ".r" -type "double3" 0 99.08 0 ;
	setAttr ".s" -type "double3" 0.982 0.982 0.982 ;
createNode mesh -n "waverShape" -p "figure1";
	rename -uid "E86903E1-9E6D-42AD-4E48-A8C7AF7F2AC4";
	setAttr -k off ".v";
	setAttr -s 67 ".iog";
	setAttr ".vir" yes;
	setAttr ".vif" yes;
	setAttr ".uvst[0].uvsn" -type "string" "map1";
	setAttr -s 4 ".uvst[0].uvsp[0:3]" -type "float2" 0 0 1 0 1 1 0 1;
	setAttr ".cuvs" -type "string" "map1";
	setAttr ".dcc" -type "string" "Ambient+Diffuse";
	setAttr ".covm[0]"  0 1 1;
	setAttr ".cdvm[0]"  0 1 1;
	setAttr -s 48 ".vt[0:47]"  -0.21 0.85 0.11 0.21 0.85 0.11 -0.21 1.45 0.11
		 0.21 1.45 0.11 -0.21 1.45 -0.11 0.21 1.45 -0.11 -0.21 0.85 -0.11 0.21 0.85
		 -0.11 -0.1 1.49 0.11 0.1 1.49 0.11 -0.1 1.75 0.11 0.1 1.75 0.11 -0.1 1.75
		 -0.11 0.1 1.75 -0.11 -0.1 1.49 -0.11 0.1 1.49 -0.11 0.215 0.807391
		 -0.022696 0.325 0.807391 -0.022696 0.215 1.42136 0.0635913 0.325 1.42136
		 0.0635913 0.215 1.43806 -0.0552409 0.325 1.43806 -0.0552409 0.215 0.824092
		 -0.141528 0.325 0.824092 -0.141528 -0.325 1.98958 0.063979 -0.215 1.98958
		 0.063979 -0.325 1.38313 -0.0649262 -0.215 1.38313 -0.0649262 -0.325 1.35818
		 0.0524515 -0.215 1.35818 0.0524515 -0.325 1.96463 0.181357 -0.215 1.96463
		 0.181357 0.035 0.00535177 0.124376 0.185 0.00535177 0.124376 0.035 0.864173
		 0.079367 0.185 0.864173 0.079367 0.035 0.855799 -0.0804137 0.185 0.855799
		 -0.0804137 0.035 -0.00302198 -0.0354048 0.185 -0.00302198 -0.0354048 -0.185
		 -0.00227416 0.0502867 -0.035 -0.00227416 0.0502867 -0.185 0.857202
		 0.0803003 -0.035 0.857202 0.0803003 -0.185 0.862786 -0.0796023 -0.035
		 0.862786 -0.0796023 -0.185 0.00330976 -0.109616 -0.035 0.00330976 -0.109616;
	setAttr -s 72 ".ed[0:71]"  0 1 0 2 3 0 4 5 0 6 7 0 0 2 0 1 3 0 2 4 0 3 5 0 4
		 6 0 5 7 0 6 0 0 7 1 0 8 9 0 10 11 0 12 13 0 14 15 0 8 10 0 9 11 0 10 12 0
		 11 13 0 12 14 0 13 15 0 14 8 0 15 9 0 16 17 0 18 19 0 20 21 0 22 23 0 16 18
		 0 17 19 0 18 20 0 19 21 0 20 22 0 21 23 0 22 16 0 23 17 0 24 25 0 26 27 0
		 28 29 0 30 31 0 24 26 0 25 27 0 26 28 0 27 29 0 28 30 0 29 31 0 30 24 0 31
		 25 0 32 33 0 34 35 0 36 37 0 38 39 0 32 34 0 33 35 0 34 36 0 35 37 0 36 38
		 0 37 39 0 38 32 0 39 33 0 40 41 0 42 43 0 44 45 0 46 47 0 40 42 0 41 43 0
		 42 44 0 43 45 0 44 46 0 45 47 0 46 40 0 47 41 0;
	setAttr -s 36 -ch 144 ".fc[0:35]" -type "polyFaces" 
		f 4 0 5 -2 -5
		mu 0 4 0 1 2 3
		f 4 1 7 -3 -7
		mu 0 4 0 1 2 3
		f 4 2 9 -4 -9
		mu 0 4 0 1 2 3
		f 4 3 11 -1 -11
		mu 0 4 0 1 2 3
		f 4 -12 -10 -8 -6
		mu 0 4 0 1 2 3
		f 4 10 4 6 8
		mu 0 4 0 1 2 3
		f 4 12 17 -14 -17
		mu 0 4 0 1 2 3
		f 4 13 19 -15 -19
		mu 0 4 0 1 2 3
		f 4 14 21 -16 -21
		mu 0 4 0 1 2 3
		f 4 15 23 -13 -23
		mu 0 4 0 1 2 3
		f 4 -24 -22 -20 -18
		mu 0 4 0 1 2 3
		f 4 22 16 18 20
		mu 0 4 0 1 2 3
		f 4 24 29 -26 -29
		mu 0 4 0 1 2 3
		f 4 25 31 -27 -31
		mu 0 4 0 1 2 3
		f 4 26 33 -28 -33
		mu 0 4 0 1 2 3
		f 4 27 35 -25 -35
		mu 0 4 0 1 2 3
		f 4 -36 -34 -32 -30
		mu 0 4 0 1 2 3
		f 4 34 28 30 32
		mu 0 4 0 1 2 3
		f 4 36 41 -38 -41
		mu 0 4 0 1 2 3
		f 4 37 43 -39 -43
		mu 0 4 0 1 2 3
		f 4 38 45 -40 -45
		mu 0 4 0 1 2 3
		f 4 39 47 -37 -47
		mu 0 4 0 1 2 3
		f 4 -48 -46 -44 -42
		mu 0 4 0 1 2 3
		f 4 46 40 42 44
		mu 0 4 0 1 2 3
		f 4 48 53 -50 -53
		mu 0 4 0 1 2 3
		f 4 49 55 -51 -55
		mu 0 4 0 1 2 3
		f 4 50 57 -52 -57
		mu 0 4 0 1 2 3
		f 4 51 59 -49 -59
		mu 0 4 0 1 2 3
		f 4 -60 -58 -56 -54
		mu 0 4 0 1 2 3
		f 4 58 52 54 56
		mu 0 4 0 1 2 3
		f 4 60 65 -62 -65
		mu 0 4 0 1 2 3
		f 4 61 67 -63 -67
		mu 0 4 0 1 2 3
		f 4 62 69 -64 -69
		mu 0 4 0 1 2 3
		f 4 63 71 -61 -71
		mu 0 4 0 1 2 3
		f 4 -72 -70 -68 -66
		mu 0 4 0 1 2 3
		f 4 70 64 66 68
		mu 0 4 0 1 2 3;
	setAttr ".cd" -type "dataPolyComponent" Index_Data Edge 0 ;
	setAttr ".cvd" -type "dataPolyComponent" Index_Data Vertex 0 ;
	setAttr ".pd[0]" -type "dataPolyComponent" Index_Data UV 0 ;
	setAttr ".hfd" -type "dataPolyComponent" Index_Data Face 0 ;
createNode transform -n "figure2" -p "|crowd|row1";
	rename -uid "4DCC02B1-CEA0-0DEA-32B8-FEDE0008242B";
	setAttr ".t" -type "double3" -4.525 0 -4.303 ;
	setAttr ".r" -type "double3" 0 91.02 0 ;
	setAttr ".s" -type "double3" 1.014 1.014 1.014 ;
createNode mesh -n "standerShape" -p "figure2";
	rename -uid "4A81F0C3-4399-BF01-A4E1-CBBEBD276305";
	setAttr -k off ".v";
	setAttr -s 138 ".iog";
	setAttr ".vir" yes;
	setAttr ".vif" yes;
	setAttr ".uvst[0].uvsn" -type "string" "map1";
	setAttr -s 4 ".uvst[0].uvsp[0:3]" -type "float2" 0 0 1 0 1 1 0 1;
	setAttr ".cuvs" -type "string" "map1";
	setAttr ".dcc" -type "string" "Ambient+Diffuse";
	setAttr ".covm[0]"  0 1 1;
	setAttr ".cdvm[0]"  0 1 1;
	setAttr -s 48 ".vt[0:47]"  -0.21 0.85 0.11 0.21 0.85 0.11 -0.21 1.45 0.11
		 0.21 1.45 0.11 -0.21 1.45 -0.11 0.21 1.45 -0.11 -0.21 0.85 -0.11 0.21 0.85
		 -0.11 -0.1 1.49 0.11 0.1 1.49 0.11 -0.1 1.75 0.11 0.1 1.75 0.11 -0.1 1.75
		 -0.11 0.1 1.75 -0.11 -0.1 1.49 -0.11 0.1 1.49 -0.11 0.215 0.815623 0.10101
		 0.325 0.815623 0.10101 0.215 1.43411 0.0577611 0.325 1.43411 0.0577611
		 0.215 1.42574 -0.0619465 0.325 1.42574 -0.0619465 0.215 0.807252 -0.0186975
		 0.325 0.807252 -0.0186975 -0.325 0.807668 0.0290396 -0.215 0.807668
		 0.0290396 -0.325 1.42682 0.0614879 -0.215 1.42682 0.0614879 -0.325 1.4331
		 -0.0583477 -0.215 1.4331 -0.0583477 -0.325 0.813949 -0.090796 -0.215
		 0.813949 -0.090796 0.035 0 0.08 0.185 0 0.08 0.035 0.86 0.08 0.185 0.86
		 0.08 0.035 0.86 -0.08 0.185 0.86 -0.08 0.035 0 -0.08 0.185 0 -0.08 -0.185 0
		 0.08 -0.035 0 0.08 -0.185 0.86 0.08 -0.035 0.86 0.08 -0.185 0.86 -0.08
		 -0.035 0.86 -0.08 -0.185 0 -0.08 -0.035 0 -0.08;
	setAttr -s 72 ".ed[0:71]"  0 1 0 2 3 0 4 5 0 6 7 0 0 2 0 1 3 0 2 4 0 3 5 0 4
		 6 0 5 7 0 6 0 0 7 1 0 8 9 0 10 11 0 12 13 0 14 15 0 8 10 0 9 11 0 10 12 0
		 11 13 0 12 14 0 13 15 0 14 8 0 15 9 0 16 17 0 18 19 0 20 21 0 22 23 0 16 18
		 0 17 19 0 18 20 0 19 21 0 20 22 0 21 23 0 22 16 0 23 17 0 24 25 0 26 27 0
		 28 29 0 30 31 0 24 26 0 25 27 0 26 28 0 27 29 0 28 30 0 29 31 0 30 24 0 31
		 25 0 32 33 0 34 35 0 36 37 0 38 39 0 32 34 0 33 35 0 34 36 0 35 37 0 36 38
		 0 37 39 0 38 32 0 39 33 0 40 41 0 42 43 0 44 45 0 46 47 0 40 42 0 41 43 0
		 42 44 0 43 45 0 44 46 0 45 47 0 46 40 0 47 41 0;
	setAttr -s 36 -ch 144 ".fc[0:35]" -type "polyFaces" 
		f 4 0 5 -2 -5
		mu 0 4 0 1 2 3
		f 4 1 7 -3 -7
		mu 0 4 0 1 2 3
		f 4 2 9 -4 -9
		mu 0 4 0 1 2 3
		f 4 3 11 -1 -11
		mu 0 4 0 1 2 3
		f 4 -12 -10 -8 -6
		mu 0 4 0 1 2 3
		f 4 10 4 6 8
		mu 0 4 0 1 2 3
		f 4 12 17 -14 -17
		mu 0 4 0 1 2 3
		f 4 13 19 -15 -19
		mu 0 4 0 1 2 3
		f 4 14 21 -16 -21
		mu 0 4 0 1 2 3
		f 4 15 23 -13 -23
		mu 0 4 0 1 2 3
		f 4 -24 -22 -20 -18
		mu 0 4 0 1 2 3
		f 4 22 16 18 20
		mu 0 4 0 1 2 3
		f 4 24 29 -26 -29
		mu 0 4 0 1 2 3
		f 4 25 31 -27 -31
		mu 0 4 0 1 2 3
		f 4 26 33 -28 -33
		mu 0 4 0 1 2 3
		f 4 27 35 -25 -35
		mu 0 4 0 1 2 3
		f 4 -36 -34 -32 -30
		mu 0 4 0 1 2 3
		f 4 34 28 30 32
		mu 0 4 0 1 2 3
		f 4 36 41 -38 -41
		mu 0 4 0 1 2 3
		f 4 37 43 -39 -43
		mu 0 4 0 1 2 3
		f 4 38 45 -40 -45
		mu 0 4 0 1 2 3
		f 4 39 47 -37 -47
		mu 0 4 0 1 2 3
		f 4 -48 -46 -44 -42
		mu 0 4 0 1 2 3
		f 4 46 40 42 44
		mu 0 4 0 1 2 3
		f 4 48 53 -50 -53
		mu 0 4 0 1 2 3
		f 4 49 55 -51 -55
		mu 0 4 0 1 2 3
		f 4 50 57 -52 -57
		mu 0 4 0 1 2 3
		f 4 51 59 -49 -59
		mu 0 4 0 1 2 3
		f 4 -60 -58 -56 -54
		mu 0 4 0 1 2 3
		f 4 58 52 54 56
		mu 0 4 0 1 2 3
		f 4 60 65 -62 -65
		mu 0 4 0 1 2 3
		f 4 61 67 -63 -67
		mu 0 4 0 1 2 3
		f 4 62 69 -64 -69
		mu 0 4 0 1 2 3
		f 4 63 71 -61 -71
		mu 0 4 0 1 2 3
		f 4 -72 -70 -68 -66
		mu 0 4 0 1 2 3
		f 4 70 64 66 68
		mu 0 4 0 1 2 3;
	setAttr ".cd" -type "dataPolyComponent" Index_Data Edge 0 ;
	setAttr ".cvd" -type "dataPolyComponent" Index_Data Vertex 0 ;
	setAttr ".pd[0]" -type "dataPolyComponent" Index_Data UV 0 ;
	setAttr ".hfd" -type "dataPolyComponent" Index_Data Face 0 ;
createNode transform -n "figure3" -p "|crowd|row1";
	rename -uid "361DB92F-4EEA-70B8-8E62-44D2D9DA7024";
	setAttr ".t" -type "double3" -4.324 0 -3.318 ;
	setAttr ".r" -type "double3" 0 111.56 0 ;
	setAttr ".s" -type "double3" 1.086 1.086 1.086 ;
createNode mesh -n "cheererShape" -p "figure3";
	rename -uid "5B5544EB-3499-3C03-5006-205C515E25C3";
	setAttr -k off ".v";
	setAttr -s 46 ".iog";
	setAttr ".vir" yes;
	setAttr ".vif" yes;
	setAttr ".uvst[0].uvsn" -type "string" "map1";
	setAttr -s 4 ".uvst[0].uvsp[0:3]" -type "float2" 0 0 1 0 1 1 0 1;
	setAttr ".cuvs" -type "string" "map1";
	setAttr ".dcc" -type "string" "Ambient+Diffuse";
	setAttr ".covm[0]"  0 1 1;
	setAttr ".cdvm[0]"  0 1 1;
	setAttr -s 48 ".vt[0:47]"  -0.21 0.85 0.11 0.21 0.85 0.11 -0.21 1.45 0.11
		 0.21 1.45 0.11 -0.21 1.45 -0.11 0.21 1.45 -0.11 -0.21 0.85 -0.11 0.21 0.85
		 -0.11 -0.1 1.49 0.11 0.1 1.49 0.11 -0.1 1.75 0.11 0.1 1.75 0.11 -0.1 1.75
		 -0.11 0.1 1.75 -0.11 -0.1 1.49 -0.11 0.1 1.49 -0.11 0.215 1.97494 0.14541
		 0.325 1.97494 0.14541 0.215 1.39233 -0.0666422 0.325 1.39233 -0.0666422
		 0.215 1.35129 0.046121 0.325 1.35129 0.046121 0.215 1.9339 0.258173 0.325
		 1.9339 0.258173 -0.325 1.99261 0.022696 -0.215 1.99261 0.022696 -0.325
		 1.37864 -0.0635913 -0.215 1.37864 -0.0635913 -0.325 1.36194 0.0552409
		 -0.215 1.36194 0.0552409 -0.325 1.97591 0.141528 -0.215 1.97591 0.141528
		 0.035 0 0.08 0.185 0 0.08 0.035 0.86 0.08 0.185 0.86 0.08 0.035 0.86 -0.08
		 0.185 0.86 -0.08 0.035 0 -0.08 0.185 0 -0.08 -0.185 0 0.08 -0.035 0 0.08
		 -0.185 0.86 0.08 -0.035 0.86 0.08 -0.185 0.86 -0.08 -0.035 0.86 -0.08
		 -0.185 0 -0.08 -0.035 0 -0.08;
	setAttr -s 72 ".ed[0:71]"  0 1 0 2 3 0 4 5 0 6 7 0 0 2 0 1 3 0 2 4 0 3 5 0 4
		 6 0 5 7 0 6 0 0 7 1 0 8 9 0 10 11 0 12 13 0 14 15 0 8 10 0 9 11 0 10 12 0
		 11 13 0 12 14 0 13 15 0 14 8 0 15 9 0 16 17 0 18 19 0 20 21 0 22 23 0 16 18
		 0 17 19 0 18 20 0 19 21 0 20 22 0 21 23 0 22 16 0 23 17 0 24 25 0 26 27 0
		 28 29 0 30 31 0 24 26 0 25 27 0 26 28 0 27 29 0 28 30 0 29 31 0 30 24 0 31
		 25 0 32 33 0 34 35 0 36 37 0 38 39 0 32 34 0 33 35 0 34 36 0 35 37 0 36 38
		 0 37 39 0 38 32 0 39 33 0 40 41 0 42 43 0 44 45 0 46 47 0 40 42 0 41 43 0
		 42 44 0 43 45 0 44 46 0 45 47 0 46 40 0 47 41 0;
	setAttr -s 36 -ch 144 ".fc[0:35]" -type "polyFaces" 
		f 4 0 5 -2 -5
		mu 0 4 0 1 2 3
		f 4 1 7 -3 -7
		mu 0 4 0 1 2 3
		f 4 2 9 -4 -9
		mu 0 4 0 1 2 3
		f 4 3 11 -1 -11
		mu 0 4 0 1 2 3
		f 4 -12 -10 -8 -6
		mu 0 4 0 1 2 3
		f 4 10 4 6 8
		mu 0 4 0 1 2 3
		f 4 12 17 -14 -17
		mu 0 4 0 1 2 3
		f 4 13 19 -15 -19
		mu 0 4 0 1 2 3
		f 4 14 21 -16 -21
		mu 0 4 0 1 2 3
		f 4 15 23 -13 -23
		mu 0 4 0 1 2 3
		f 4 -24 -22 -20 -18
		mu 0 4 0 1 2 3
		f 4 22 16 18 20
		mu 0 4 0 1 2 3
		f 4 24 29 -26 -29
		mu 0 4 0 1 2 3
		f 4 25 31 -27 -31
		mu 0 4 0 1 2 3
		f 4 26 33 -28 -33
		mu 0 4 0 1 2 3
		f 4 27 35 -25 -35
		mu 0 4 0 1 2 3
		f 4 -36 -34 -32 -30
		mu 0 4 0 1 2 3
		f 4 34 28 30 32
		mu 0 4 0 1 2 3
		f 4 36 41 -38 -41
		mu 0 4 0 1 2 3
		f 4 37 43 -39 -43
		mu 0 4 0 1 2 3
		f 4 38 45 -40 -45
		mu 0 4 0 1 2 3
		f 4 39 47 -37 -47
		mu 0 4 0 1 2 3
		f 4 -48 -46 -44 -42
		mu 0 4 0 1 2 3
		f 4 46 40 42 44
		mu 0 4 0 1 2 3
		f 4 48 53 -50 -53
		mu 0 4 0 1 2 3
		f 4 49 55 -51 -55
		mu 0 4 0 1 2 3
		f 4 50 57 -52 -57
		mu 0 4 0 1 2 3
		f 4 51 59 -49 -59
		mu 0 4 0 1 2 3
		f 4 -60 -58 -56 -54
		mu 0 4 0 1 2 3
		f 4 58 52 54 56
		mu 0 4 0 1 2 3
		f 4 60 65 -62 -65
		mu 0 4 0 1 2 3
		f 4 61 67 -63 -67
		mu 0 4 0 1 2 3
		f 4 62 69 -64 -69
		mu 0 4 0 1 2 3
		f 4 63 71 -61 -71
		mu 0 4 0 1 2 3
		f 4 -72 -70 -68 -66
		mu 0 4 0 1 2 3
		f 4 70 64 66 68
		mu 0 4 0 1 2 3;
	setAttr ".cd" -type "dataPolyComponent" Index_Data Edge 0 ;
	setAttr ".cvd" -type "dataPolyComponent" Index_Data Vertex 0 ;
	setAttr ".pd[0]" -type "dataPolyComponent" Index_Data UV 0 ;
	setAttr ".hfd" -type "dataPolyComponent" Index_Data Face 0 ;
createNode transform -n "figure4" -p "|crowd|row1";
	rename -uid "3E991FFC-3852-F32B-2047-4E37597B93DE";
	setAttr ".t" -type "double3" -3.663 0 -2.552 ;
	setAttr ".r" -type "double3" 0 135.68 0 ;
	setAttr ".s" -type "double3" 1.057 1.057 1.057 ;
createNode transform -n "figure5" -p "|crowd|row1";
	rename -uid "5709686A-0534-A35C-3E60-ABC91ADD7EBE";
	setAttr ".t" -type "double3" -3.198 0 -1.66 ;
	setAttr ".r" -type "double3" 0 143.44 0 ;
	setAttr ".s" -type "double3" 1.019 1.019 1.019 ;
createNode transform -n "figure6" -p "|crowd|row1";
	rename -uid "C353CDA7-C02B-29AD-9C29-BA97B4E3C754";
	setAttr ".t" -type "double3" -2.368 0 -1.097 ;
	setAttr ".r" -type "double3" 0 158.51 0 ;
	setAttr ".s" -type "double3" 0.949 0.949 0.949 ;
createNode transform -n "figure7" -p "|crowd|row1";
	rename -uid "06D9C0E9-70D1-22A5-E0B9-7BAC1787A2C8";
	setAttr ".t" -type "double3" -1.452 0 -0.723 ;
	setAttr ".r" -type "double3" 0 148.23 0 ;
	setAttr ".s" -type "double3" 0.917 0.917 0.917 ;
createNode mesh -n "walkerShape" -p "figure7";
	rename -uid "FEC200C6-E9A4-E49E-4C22-D2CB9868415E";
	setAttr -k off ".v";
	setAttr -s 41 ".iog";
	setAttr ".vir" yes;
	setAttr ".vif" yes;
	setAttr ".uvst[0].uvsn" -type "string" "map1";
	setAttr -s 4 ".uvst[0].uvsp[0:3]" -type "float2" 0 0 1 0 1 1 0 1;
	setAttr ".cuvs" -type "string" "map1";
	setAttr ".dcc" -type "string" "Ambient+Diffuse";
	setAttr ".covm[0]"  0 1 1;
	setAttr ".cdvm[0]"  0 1 1;
	setAttr -s 48 ".vt[0:47]"  -0.21 0.85 0.11 0.21 0.85 0.11 -0.21 1.45 0.11
		 0.21 1.45 0.11 -0.21 1.45 -0.11 0.21 1.45 -0.11 -0.21 0.85 -0.11 0.21 0.85
		 -0.11 -0.1 1.49 0.11 0.1 1.49 0.11 -0.1 1.75 0.11 0.1 1.75 0.11 -0.1 1.75
		 -0.11 0.1 1.75 -0.11 -0.1 1.49 -0.11 0.1 1.49 -0.11 0.215 0.850893
		 -0.224011 0.325 0.850893 -0.224011 0.215 1.39832 0.067061 0.325 1.39832
		 0.067061 0.215 1.45466 -0.0388927 0.325 1.45466 -0.0388927 0.215 0.907229
		 -0.329965 0.325 0.907229 -0.329965 -0.325 0.919045 0.346962 -0.215 0.919045
		 0.346962 -0.325 1.45598 0.0369615 -0.215 1.45598 0.0369615 -0.325 1.39598
		 -0.0669615 -0.215 1.39598 -0.0669615 -0.325 0.859045 0.243038 -0.215
		 0.859045 0.243038 0.035 0.121095 0.444519 0.185 0.121095 0.444519 0.035
		 0.894058 0.0675198 0.185 0.894058 0.0675198 0.035 0.823918 -0.0762872 0.185
		 0.823918 -0.0762872 0.035 0.0509554 0.300712 0.185 0.0509554 0.300712
		 -0.185 0.0409474 -0.272643 -0.035 0.0409474 -0.272643 -0.185 0.826597
		 0.077151 -0.035 0.826597 0.077151 -0.185 0.891674 -0.0690163 -0.035
		 0.891674 -0.0690163 -0.185 0.106025 -0.41881 -0.035 0.106025 -0.41881;
	setAttr -s 72 ".ed[0:71]"  0 1 0 2 3 0 4 5 0 6 7 0 0 2 0 1 3 0 2 4 0 3 5 0 4
		 6 0 5 7 0 6 0 0 7 1 0 8 9 0 10 11 0 12 13 0 14 15 0 8 10 0 9 11 0 10 12 0
		 11 13 0 12 14 0 13 15 0 14 8 0 15 9 0 16 17 0 18 19 0 20 21 0 22 23 0 16 18
		 0 17 19 0 18 20 0 19 21 0 20 22 0 21 23 0 22 16 0 23 17 0 24 25 0 26 27 0
		 28 29 0 30 31 0 24 26 0 25 27 0 26 28 0 27 29 0 28 30 0 29 31 0 30 24 0 31
		 25 0 32 33 0 34 35 0 36 37 0 38 39 0 32 34 0 33 35 0 34 36 0 35 37 0 36 38
		 0 37 39 0 38 32 0 39 33 0 40 41 0 42 43 0 44 45 0 46 47 0 40 42 0 41 43 0
		 42 44 0 43 45 0 44 46 0 45 47 0 46 40 0 47 41 0;
	setAttr -s 36 -ch 144 ".fc[0:35]" -type "polyFaces" 
		f 4 0 5 -2 -5
		mu 0 4 0 1 2 3
		f 4 1 7 -3 -7
		mu 0 4 0 1 2 3
		f 4 2 9 -4 -9
		mu 0 4 0 1 2 3
		f 4 3 11 -1 -11
		mu 0 4 0 1 2 3
		f 4 -12 -10 -8 -6
		mu 0 4 0 1 2 3
		f 4 10 4 6 8
		mu 0 4 0 1 2 3
		f 4 12 17 -14 -17
		mu 0 4 0 1 2 3
		f 4 13 19 -15 -19
		mu 0 4 0 1 2 3
		f 4 14 21 -16 -21
		mu 0 4 0 1 2 3
		f 4 15 23 -13 -23
		mu 0 4 0 1 2 3
		f 4 -24 -22 -20 -18
		mu 0 4 0 1 2 3
		f 4 22 16 18 20
		mu 0 4 0 1 2 3
		f 4 24 29 -26 -29
		mu 0 4 0 1 2 3
		f 4 25 31 -27 -31
		mu 0 4 0 1 2 3
		f 4 26 33 -28 -33
		mu 0 4 0 1 2 3
		f 4 27 35 -25 -35
		mu 0 4 0 1 2 3
		f 4 -36 -34 -32 -30
		mu 0 4 0 1 2 3
		f 4 34 28 30 32
		mu 0 4 0 1 2 3
		f 4 36 41 -38 -41
		mu 0 4 0 1 2 3
		f 4 37 43 -39 -43
		mu 0 4 0 1 2 3
		f 4 38 45 -40 -45
		mu 0 4 0 1 2 3
		f 4 39 47 -37 -47
		mu 0 4 0 1 2 3
		f 4 -48 -46 -44 -42
		mu 0 4 0 1 2 3
		f 4 46 40 42 44
		mu 0 4 0 1 2 3
		f 4 48 53 -50 -53
		mu 0 4 0 1 2 3
		f 4 49 55 -51 -55
		mu 0 4 0 1 2 3
		f 4 50 57 -52 -57
		mu 0 4 0 1 2 3
		f 4 51 59 -49 -59
		mu 0 4 0 1 2 3
		f 4 -60 -58 -56 -54
		mu 0 4 0 1 2 3
		f 4 58 52 54 56
		mu 0 4 0 1 2 3
		f 4 60 65 -62 -65
		mu 0 4 0 1 2 3
		f 4 61 67 -63 -67
		mu 0 4 0 1 2 3
		f 4 62 69 -64 -69
		mu 0 4 0 1 2 3
		f 4 63 71 -61 -71
		mu 0 4 0 1 2 3
		f 4 -72 -70 -68 -66
		mu 0 4 0 1 2 3
		f 4 70 64 66 68
		mu 0 4 0 1 2 3;
	setAttr ".cd" -type "dataPolyComponent" Index_Data Edge 0 ;
	setAttr ".cvd" -type "dataPolyComponent" Index_Data Vertex 0 ;
	setAttr ".pd[0]" -type "dataPolyComponent" Index_Data UV 0 ;
	setAttr ".hfd" -type "dataPolyComponent" Index_Data Face 0 ;
createNode transform -n "figure8" -p "|crowd|row1";
	rename -uid "0016B5AD-28FB-2FEB-B504-F9D9B894866D";
	setAttr ".t" -type "double3" -0.481 0 -0.612 ;
	setAttr ".r" -type "double3" 0 166.34 0 ;
	setAttr ".s" -type "double3" 1.003 1.003 1.003 ;
createNode transform -n "figure9" -p "|crowd|row1";
	rename -uid "7CF24C1D-9568-6350-687F-D7DEF3F715CD";
	setAttr ".t" -type "double3" 0.498 0 -0.455 ;
	setAttr ".r" -type "double3" 0 174.96 0 ;
	setAttr ".s" -type "double3" 1.087 1.087 1.087 ;
createNode transform -n "figure10" -p "|crowd|row1";
	rename -uid "9F2CDEB2-6187-4F14-3656-4596739239B3";
	setAttr ".t" -type "double3" 1.473 0 -0.661 ;
	setAttr ".r" -type "double3" 0 206.36 0 ;
	setAttr ".s" -type "double3" 1.023 1.023 1.023 ;
createNode transform -n "figure11" -p "|crowd|row1";
	rename -uid "DD081479-BC34-CE42-1A8C-2C94A4BD5BD7";
	setAttr ".t" -type "double3" 2.315 0 -1.185 ;
	setAttr ".r" -type "double3" 0 203.62 0 ;
	setAttr ".s" -type "double3" 1.074 1.074 1.074 ;
createNode transform -n "figure12" -p "|crowd|row1";
	rename -uid "5C7E65CF-7A8E-44E5-A035-C516E5E1FE6F";
	setAttr ".t" -type "double3" 3.187 0 -1.671 ;
	setAttr ".r" -type "double3" 0 220.17 0 ;
	setAttr ".s" -type "double3" 1.068 1.068 1.068 ;
createNode transform -n "figure13" -p "|crowd|row1";
	rename -uid "335DC5FD-5275-97C7-FBAA-3EDE0FED9A70";
	setAttr ".t" -type "double3" 3.627 0 -2.576 ;
	setAttr ".r" -type "double3" 0 249.96 0 ;
	setAttr ".s" -type "double3" 0.995 0.995 0.995 ;
createNode transform -n "figure14" -p "|crowd|row1";
	rename -uid "A96FFDEA-7415-3BC4-FC2B-1D1677E88480";
	setAttr ".t" -type "double3" 4.263 0 -3.342 ;
	setAttr ".r" -type "double3" 0 245.04 0 ;
	setAttr ".s" -type "double3" 0.939 0.939 0.939 ;
createNode transform -n "figure15" -p "|crowd|row1";
	rename -uid "E9C35F9E-6501-FF54-4D1C-2F5E299BB08F";
	setAttr ".t" -type "double3" 4.401 0 -4.323 ;
	setAttr ".r" -type "double3" 0 260.26 0 ;
	setAttr ".s" -type "double3" 0.945 0.945 0.945 ;
createNode transform -n "figure16" -p "|crowd|row1";
	rename -uid "F2FA0E01-F493-6789-CA11-9AF7CB2B7674";
	setAttr ".t" -type "double3" 4.522 0 -5.296 ;
	setAttr ".r" -type "double3" 0 287.69 0 ;
	setAttr ".s" -type "double3" 1.085 1.085 1.085 ;
createNode transform -n "row2" -p "crowd";
	rename -uid "F5EF2CB1-D9C0-475F-C8BC-9BBAB32706C8";
createNode transform -n "figure17" -p "|crowd|row2";
	rename -uid "D09C4192-147C-2BE8-2AAE-7EFD4EF8BF39";
	setAttr ".t" -type "double3" -5.594 0 -5.464 ;
	setAttr ".r" -type "double3" 0 76.71 0 ;
	setAttr ".s" -type "double3" 1.078 1.078 1.078 ;
createNode transform -n "figure18" -p "|crowd|row2";
	rename -uid "23628BDA-199A-DE21-9EED-33673EB9046C";
	setAttr ".t" -type "double3" -5.433 0 -4.449 ;
	setAttr ".r" -type "double3" 0 102.41 0 ;
	setAttr ".s" -type "double3" 0.925 0.925 0.925 ;
createNode transform -n "figure19" -p "|crowd|row2";
	rename -uid "BB79E901-01A1-509D-8A7E-A587D61C9E10";
	setAttr ".t" -type "double3" -5.242 0 -3.466 ;
	setAttr ".r" -type "double3" 0 96.25 0 ;
	setAttr ".s" -type "double3" 1.089 1.089 1.089 ;
createNode transform -n "figure20" -p "|crowd|row2";
	rename -uid "6D0FEDE1-2590-518E-808B-2357FE133FED";
	setAttr ".t" -type "double3" -5.046 0 -2.446 ;
	setAttr ".r" -type "double3" 0 118.74 0 ;
	setAttr ".s" -type "double3" 0.935 0.935 0.935 ;
createNode transform -n "figure21" -p "|crowd|row2";
	rename -uid "D31BBDCA-C380-3083-C2B0-B36486128788";
	setAttr ".t" -type "double3" -4.407 0 -1.634 ;
	setAttr ".r" -type "double3" 0 135.07 0 ;
	setAttr ".s" -type "double3" 1.011 1.011 1.011 ;
createNode transform -n "figure22" -p "|crowd|row2";
	rename -uid "0C5B5C36-A79C-3C9C-4DF5-24A57DDA583C";
	setAttr ".t" -type "double3" -3.688 0 -0.919 ;
	setAttr ".r" -type "double3" 0 144.75 0 ;
	setAttr ".s" -type "double3" 0.942 0.942 0.942 ;
createNode transform -n "figure23" -p "|crowd|row2";
	rename -uid "853E761C-CCFD-6D71-FAEF-C853F6647587";
	setAttr ".t" -type "double3" -2.873 0 -0.325 ;
	setAttr ".r" -type "double3" 0 159.81 0 ;
	setAttr ".s" -type "double3" 1.08 1.08 1.08 ;
createNode transform -n "figure24" -p "|crowd|row2";
	rename -uid "E322FBE4-0DD7-B631-A6EB-F57FCC93B4EA";
	setAttr ".t" -type "double3" -2.039 0 0.297 ;
	setAttr ".r" -type "double3" 0 154.45 0 ;
	setAttr ".s" -type "double3" 0.92 0.92 0.92 ;
createNode transform -n "figure25" -p "|crowd|row2";
	rename -uid "58BAF25A-D3E4-A591-17FF-111122202D28";
	setAttr ".t" -type "double3" -0.999 0 0.378 ;
	setAttr ".r" -type "double3" 0 173.28 0 ;
	setAttr ".s" -type "double3" 1.003 1.003 1.003 ;
createNode transform -n "figure26" -p "|crowd|row2";
	rename -uid "8D682E6F-6CCF-A79A-A14E-0EF9008695C8";
	setAttr ".t" -type "double3" 0 0 0.625 ;
	setAttr ".r" -type "double3" 0 175.46 0 ;
createNode transform -n "figure27" -p "|crowd|row2";
	rename -uid "90D4FAB5-D4E4-4B25-543D-E3EF1C6A7CBB";
	setAttr ".t" -type "double3" 0.999 0 0.375 ;
	setAttr ".r" -type "double3" 0 182.8 0 ;
	setAttr ".s" -type "double3" 0.984 0.984 0.984 ;
createNode transform -n "figure28" -p "|crowd|row2";
	rename -uid "F6212864-68BB-7A78-FA69-152C57A92BFF";
	setAttr ".t" -type "double3" 2.011 0 0.224 ;
	setAttr ".r" -type "double3" 0 190.84 0 ;
	setAttr ".s" -type "double3" 0.923 0.923 0.923 ;
createNode transform -n "figure29" -p "|crowd|row2";
	rename -uid "F8D222A7-007E-82D6-EEF8-B0FB118A0CEB";
	setAttr ".t" -type "double3" 2.924 0 -0.243 ;
	setAttr ".r" -type "double3" 0 215.82 0 ;
	setAttr ".s" -type "double3" 1.044 1.044 1.044 ;
createNode transform -n "figure30" -p "|crowd|row2";
	rename -uid "131D67A1-2E95-75BF-598D-C7EE82201B0A";
	setAttr ".t" -type "double3" 3.782 0 -0.816 ;
	setAttr ".r" -type "double3" 0 227.08 0 ;
	setAttr ".s" -type "double3" 0.911 0.911 0.911 ;
createNode transform -n "figure31" -p "|crowd|row2";
	rename -uid "A750B0AE-71D3-092F-F886-527E14CF99AD";
	setAttr ".t" -type "double3" 4.421 0 -1.624 ;
	setAttr ".r" -type "double3" 0 222.16 0 ;
	setAttr ".s" -type "double3" 1.091 1.091 1.091 ;
createNode transform -n "figure32" -p "|crowd|row2";
	rename -uid "3DD1E4BA-212F-1FF2-0A56-73B6841E2487";
	setAttr ".t" -type "double3" 5.122 0 -2.408 ;
	setAttr ".r" -type "double3" 0 244.57 0 ;
	setAttr ".s" -type "double3" 0.999 0.999 0.999 ;
createNode transform -n "figure33" -p "|crowd|row2";
	rename -uid "C47B8E54-31FB-C89F-0F84-8E34EE9944F4";
	setAttr ".t" -type "double3" 5.414 0 -3.415 ;
	setAttr ".r" -type "double3" 0 257.54 0 ;
	setAttr ".s" -type "double3" 1.065 1.065 1.065 ;
createNode transform -n "figure34" -p "|crowd|row2";
	rename -uid "482D68FD-4E89-69EB-148C-0B74FBE70626";
	setAttr ".t" -type "double3" 5.575 0 -4.435 ;
	setAttr ".r" -type "double3" 0 270.52 0 ;
	setAttr ".s" -type "double3" 1.008 1.008 1.008 ;
createNode transform -n "figure35" -p "|crowd|row2";
	rename -uid "143037FB-023B-120C-5951-5EE54748B485";
	setAttr ".t" -type "double3" 5.461 0 -5.453 ;
	setAttr ".r" -type "double3" 0 278.11 0 ;
	setAttr ".s" -type "double3" 0.981 0.981 0.981 ;
createNode transform -n "row3" -p "crowd";
	rename -uid "95683543-4AD8-97ED-5D57-E0251B2896A0";
createNode transform -n "figure36" -p "|crowd|row3";
	rename -uid "5F195DCD-3FCB-97B5-0A03-72CC374BC38C";
	setAttr ".t" -type "double3" -6.531 0 -5.646 ;
	setAttr ".r" -type "double3" 0 96.46 0 ;
	setAttr ".s" -type "double3" 0.973 0.973 0.973 ;
createNode transform -n "figure37" -p "|crowd|row3";
	rename -uid "C33EA19B-83D7-83C5-76B3-8D1005A88A34";
	setAttr ".t" -type "double3" -6.73 0 -4.642 ;
	setAttr ".r" -type "double3" 0 106.05 0 ;
	setAttr ".s" -type "double3" 0.962 0.962 0.962 ;
createNode transform -n "figure38" -p "|crowd|row3";
	rename -uid "6DDAA54B-224C-9AB9-5D77-6EDFC98DC1A8";
	setAttr ".t" -type "double3" -6.602 0 -3.628 ;
	setAttr ".r" -type "double3" 0 109.32 0 ;
	setAttr ".s" -type "double3" 1.076 1.076 1.076 ;
createNode transform -n "figure39" -p "|crowd|row3";
	rename -uid "53ED740C-6879-DA2F-9562-C24898A47AF8";
	setAttr ".t" -type "double3" -6.165 0 -2.703 ;
	setAttr ".r" -type "double3" 0 120.13 0 ;
	setAttr ".s" -type "double3" 1.07 1.07 1.07 ;
createNode transform -n "figure40" -p "|crowd|row3";
	rename -uid "7F61A818-7D3F-DC89-A7E1-AC0AC71B0063";
	setAttr ".t" -type "double3" -5.904 0 -1.71 ;
	setAttr ".r" -type "double3" 0 107.34 0 ;
	setAttr ".s" -type "double3" 1.06 1.06 1.06 ;
createNode transform -n "figure41" -p "|crowd|row3";
	rename -uid "AA8053EB-27A8-680D-803B-FFC8920C1C09";
	setAttr ".t" -type "double3" -5.222 0 -0.946 ;
	setAttr ".r" -type "double3" 0 138.53 0 ;
	setAttr ".s" -type "double3" 1.032 1.032 1.032 ;
createNode transform -n "figure42" -p "|crowd|row3";
	rename -uid "23573CB9-255D-841C-1893-56259559CE8F";
	setAttr ".t" -type "double3" -4.648 0 -0.099 ;
	setAttr ".r" -type "double3" 0 146.25 0 ;
	setAttr ".s" -type "double3" 1.01 1.01 1.01 ;
createNode transform -n "figure43" -p "|crowd|row3";
	rename -uid "22E0B17F-0008-6EAA-4DE5-7119487EFA90";
	setAttr ".t" -type "double3" -3.781 0 0.443 ;
	setAttr ".r" -type "double3" 0 144.49 0 ;
	setAttr ".s" -type "double3" 0.938 0.938 0.938 ;
createNode transform -n "figure44" -p "|crowd|row3";
	rename -uid "C74F8813-792B-B1E2-4FBC-ED01FD05568A";
	setAttr ".t" -type "double3" -2.942 0 1.008 ;
	setAttr ".r" -type "double3" 0 157.58 0 ;
	setAttr ".s" -type "double3" 0.953 0.953 0.953 ;
createNode transform -n "figure45" -p "|crowd|row3";
	rename -uid "484A574D-956A-DD95-DD08-E2D48EFC1E4A";
	setAttr ".t" -type "double3" -1.965 0 1.274 ;
	setAttr ".r" -type "double3" 0 164.19 0 ;
	setAttr ".s" -type "double3" 1.068 1.068 1.068 ;
createNode transform -n "figure46" -p "|crowd|row3";
	rename -uid "F344578F-3A36-9858-EB19-B0840400EC52";
	setAttr ".t" -type "double3" -1.025 0 1.704 ;
	setAttr ".r" -type "double3" 0 158.58 0 ;
	setAttr ".s" -type "double3" 1.087 1.087 1.087 ;
createNode transform -n "figure47" -p "|crowd|row3";
	rename -uid "8BC8D3A8-4372-D72F-1781-D7C3B425496C";
	setAttr ".t" -type "double3" 0 0 1.698 ;
	setAttr ".r" -type "double3" 0 174.23 0 ;
	setAttr ".s" -type "double3" 0.955 0.955 0.955 ;
createNode transform -n "figure48" -p "|crowd|row3";
	rename -uid "2364DC23-4D46-6577-4E60-5711533E7CB1";
	setAttr ".t" -type "double3" 1.01 0 1.606 ;
	setAttr ".r" -type "double3" 0 197.11 0 ;
	setAttr ".s" -type "double3" 0.972 0.972 0.972 ;
createNode transform -n "figure49" -p "|crowd|row3";
	rename -uid "A6172676-AF47-506B-45BD-16FD355E66B7";
	setAttr ".t" -type "double3" 2.018 0 1.444 ;
	setAttr ".r" -type "double3" 0 208.32 0 ;
createNode transform -n "figure50" -p "|crowd|row3";
	rename -uid "8EF37026-CEAA-468C-7EA2-08DBA08C41B4";
	setAttr ".t" -type "double3" 2.946 0 1.018 ;
	setAttr ".r" -type "double3" 0 210.88 0 ;
	setAttr ".s" -type "double3" 1.031 1.031 1.031 ;
createNode transform -n "figure51" -p "|crowd|row3";
	rename -uid "5A7F8B4B-E203-5BFB-681E-DAC01F0B3650";
	setAttr ".t" -type "double3" 3.824 0 0.505 ;
	setAttr ".r" -type "double3" 0 218.51 0 ;
	setAttr ".s" -type "double3" 0.928 0.928 0.928 ;
createNode transform -n "figure52" -p "|crowd|row3";
	rename -uid "F28F66AE-EC4E-BB15-C101-B2C0CE160F69";
	setAttr ".t" -type "double3" 4.668 0 -0.078 ;
	setAttr ".r" -type "double3" 0 219.9 0 ;
	setAttr ".s" -type "double3" 0.979 0.979 0.979 ;
createNode transform -n "figure53" -p "|crowd|row3";
	rename -uid "787AA7FF-12BD-E72F-E188-587E93A237D6";
	setAttr ".t" -type "double3" 5.308 0 -0.879 ;
	setAttr ".r" -type "double3" 0 221.3 0 ;
	setAttr ".s" -type "double3" 0.948 0.948 0.948 ;
createNode transform -n "figure54" -p "|crowd|row3";
	rename -uid "E0C80842-DEAE-2CD8-13FD-941BBB2006EC";
	setAttr ".t" -type "double3" 5.734 0 -1.804 ;
	setAttr ".r" -type "double3" 0 246.63 0 ;
	setAttr ".s" -type "double3" 1.079 1.079 1.079 ;
createNode transform -n "figure55" -p "|crowd|row3";
	rename -uid "2997EF13-02F3-70BF-BC10-B72E9D44DBF4";
	setAttr ".t" -type "double3" 6.149 0 -2.709 ;
	setAttr ".r" -type "double3" 0 245.17 0 ;
	setAttr ".s" -type "double3" 0.985 0.985 0.985 ;
createNode transform -n "figure56" -p "|crowd|row3";
	rename -uid "7992077E-64CD-4096-215F-AC2EA01673C3";
	setAttr ".t" -type "double3" 6.531 0 -3.643 ;
	setAttr ".r" -type "double3" 0 259.53 0 ;
	setAttr ".s" -type "double3" 0.944 0.944 0.944 ;
createNode transform -n "figure57" -p "|crowd|row3";
	rename -uid "54B07161-0541-662A-017C-22345D2258C6";
	setAttr ".t" -type "double3" 6.68 0 -4.645 ;
	setAttr ".r" -type "double3" 0 270.67 0 ;
	setAttr ".s" -type "double3" 0.992 0.992 0.992 ;
createNode transform -n "figure58" -p "|crowd|row3";
	rename -uid "F8D34E2D-C269-AEF4-FA39-F1D10AD5D5E6";
	setAttr ".t" -type "double3" 6.811 0 -5.674 ;
	setAttr ".r" -type "double3" 0 277.54 0 ;
	setAttr ".s" -type "double3" 0.914 0.914 0.914 ;
createNode transform -n "row4" -p "crowd";
	rename -uid "E4ED43ED-1423-9136-794A-6F912C07724C";
createNode transform -n "figure59" -p "|crowd|row4";
	rename -uid "E3895B8F-6967-8992-4BA6-17FC869CD44F";
	setAttr ".t" -type "double3" -7.669 0 -5.846 ;
	setAttr ".r" -type "double3" 0 88.01 0 ;
	setAttr ".s" -type "double3" 1.087 1.087 1.087 ;
createNode transform -n "figure60" -p "|crowd|row4";
	rename -uid "6E63594F-E5BD-FF61-D68E-CF93D5427193";
	setAttr ".t" -type "double3" -7.67 0 -4.851 ;
	setAttr ".r" -type "double3" 0 99.81 0 ;
	setAttr ".s" -type "double3" 1.079 1.079 1.079 ;
createNode transform -n "figure61" -p "|crowd|row4";
	rename -uid "63406B64-4D08-E4D8-E0CD-C780F4B14974";
	setAttr ".t" -type "double3" -7.783 0 -3.834 ;
	setAttr ".r" -type "double3" 0 107.94 0 ;
	setAttr ".s" -type "double3" 1.006 1.006 1.006 ;
createNode transform -n "figure62" -p "|crowd|row4";
	rename -uid "2ADDD5CB-B5A8-D629-4026-3EB9F6BCB4E8";
	setAttr ".t" -type "double3" -7.465 0 -2.87 ;
	setAttr ".r" -type "double3" 0 112.56 0 ;
	setAttr ".s" -type "double3" 1.061 1.061 1.061 ;
createNode transform -n "figure63" -p "|crowd|row4";
	rename -uid "7336847A-0AFC-EFD1-233F-659FAD29DE9D";
	setAttr ".t" -type "double3" -7.175 0 -1.905 ;
	setAttr ".r" -type "double3" 0 109.71 0 ;
	setAttr ".s" -type "double3" 1.075 1.075 1.075 ;
createNode transform -n "figure64" -p "|crowd|row4";
	rename -uid "36D59D2E-E57E-35D6-84E5-246E8DD04D28";
	setAttr ".t" -type "double3" -6.778 0 -0.969 ;
	setAttr ".r" -type "double3" 0 109.59 0 ;
	setAttr ".s" -type "double3" 0.974 0.974 0.974 ;
createNode transform -n "figure65" -p "|crowd|row4";
	rename -uid "B9923B70-93C4-885F-E721-B6A35F68812C";
	setAttr ".t" -type "double3" -6.188 0 -0.14 ;
	setAttr ".r" -type "double3" 0 121.02 0 ;
	setAttr ".s" -type "double3" 0.908 0.908 0.908 ;
createNode transform -n "figure66" -p "|crowd|row4";
	rename -uid "85596B2B-098B-6BCF-242C-BEB715267F00";
	setAttr ".t" -type "double3" -5.537 0 0.646 ;
	setAttr ".r" -type "double3" 0 131.23 0 ;
	setAttr ".s" -type "double3" 1.028 1.028 1.028 ;
createNode transform -n "figure67" -p "|crowd|row4";
	rename -uid "1ED1049F-AE58-8024-16CD-F54E9A4A2F39";
	setAttr ".t" -type "double3" -4.68 0 1.202 ;
	setAttr ".r" -type "double3" 0 144.74 0 ;
	setAttr ".s" -type "double3" 1.067 1.067 1.067 ;
createNode transform -n "figure68" -p "|crowd|row4";
	rename -uid "90F2D830-E4D4-7FE5-3F2E-09A03A8D37C2";
	setAttr ".t" -type "double3" -3.908 0 1.87 ;
	setAttr ".r" -type "double3" 0 163.11 0 ;
	setAttr ".s" -type "double3" 0.991 0.991 0.991 ;
createNode transform -n "figure69" -p "|crowd|row4";
	rename -uid "9F8D43DB-851A-59E8-39C2-3B658EFD14D4";
	setAttr ".t" -type "double3" -2.92 0 2.148 ;
	setAttr ".r" -type "double3" 0 166.06 0 ;
	setAttr ".s" -type "double3" 1.025 1.025 1.025 ;
createNode transform -n "figure70" -p "|crowd|row4";
	rename -uid "8E7152FF-BE1F-CEA6-C5F8-910189B54053";
	setAttr ".t" -type "double3" -1.957 0 2.398 ;
	setAttr ".r" -type "double3" 0 153.26 0 ;
	setAttr ".s" -type "double3" 1.085 1.085 1.085 ;
createNode transform -n "figure71" -p "|crowd|row4";
	rename -uid "2505973D-DF31-305B-3DBA-24B372D438E7";
	setAttr ".t" -type "double3" -1.023 0 2.871 ;
	setAttr ".r" -type "double3" 0 181.61 0 ;
	setAttr ".s" -type "double3" 0.996 0.996 0.996 ;
createNode transform -n "figure72" -p "|crowd|row4";
	rename -uid "5DE714E2-32B4-2E1A-E7A0-76920A892527";
	setAttr ".t" -type "double3" 0 0 2.811 ;
	setAttr ".r" -type "double3" 0 170.24 0 ;
	setAttr ".s" -type "double3" 1.014 1.014 1.014 ;
createNode transform -n "figure73" -p "|crowd|row4";
	rename -uid "8F43ABB1-BB95-E738-DE54-F8BC60B61E26";
	setAttr ".t" -type "double3" 1.016 0 2.814 ;
	setAttr ".r" -type "double3" 0 176.31 0 ;
	setAttr ".s" -type "double3" 0.955 0.955 0.955 ;
createNode transform -n "figure74" -p "|crowd|row4";
	rename -uid "CB4C945C-E4B3-57DB-DE9F-61955F4A5078";
	setAttr ".t" -type "double3" 2.011 0 2.604 ;
	setAttr ".r" -type "double3" 0 200.39 0 ;
	setAttr ".s" -type "double3" 1.073 1.073 1.073 ;
createNode transform -n "figure75" -p "|crowd|row4";
	rename -uid "156D4D52-E3D4-6F0A-FD08-9D091EF8DDA0";
	setAttr ".t" -type "double3" 2.964 0 2.255 ;
	setAttr ".r" -type "double3" 0 204.32 0 ;
	setAttr ".s" -type "double3" 0.953 0.953 0.953 ;
createNode transform -n "figure76" -p "|crowd|row4";
	rename -uid "164D5F91-987E-13A2-AA45-65317F2EAC6B";
	setAttr ".t" -type "double3" 3.838 0 1.747 ;
	setAttr ".r" -type "double3" 0 214.64 0 ;
	setAttr ".s" -type "double3" 1.018 1.018 1.018 ;
createNode transform -n "figure77" -p "|crowd|row4";
	rename -uid "1BE80A6C-88F6-F425-5716-A8F92670B946";
	setAttr ".t" -type "double3" 4.725 0 1.261 ;
	setAttr ".r" -type "double3" 0 212.22 0 ;
	setAttr ".s" -type "double3" 0.954 0.954 0.954 ;
createNode transform -n "figure78" -p "|crowd|row4";
	rename -uid "508207B0-1AC5-F04F-EBB8-E897059C8748";
	setAttr ".t" -type "double3" 5.534 0 0.642 ;
	setAttr ".r" -type "double3" 0 213.53 0 ;
	setAttr ".s" -type "double3" 1.032 1.032 1.032 ;
createNode transform -n "figure79" -p "|crowd|row4";
	rename -uid "C6B2C0F1-AE58-C2E7-F766-5144C6FB8FE4";
	setAttr ".t" -type "double3" 6.193 0 -0.136 ;
	setAttr ".r" -type "double3" 0 220.05 0 ;
	setAttr ".s" -type "double3" 1.072 1.072 1.072 ;
createNode transform -n "figure80" -p "|crowd|row4";
	rename -uid "085D78D2-0743-82CE-4ACA-222BAD1AF195";
	setAttr ".t" -type "double3" 6.577 0 -1.089 ;
	setAttr ".r" -type "double3" 0 252.7 0 ;
	setAttr ".s" -type "double3" 1.071 1.071 1.071 ;
createNode transform -n "figure81" -p "|crowd|row4";
	rename -uid "B3796F77-A8F9-4CB5-62B0-62F24608E531";
	setAttr ".t" -type "double3" 7.157 0 -1.913 ;
	setAttr ".r" -type "double3" 0 240.17 0 ;
	setAttr ".s" -type "double3" 1.021 1.021 1.021 ;
createNode transform -n "figure82" -p "|crowd|row4";
	rename -uid "7A87EA6E-AB8B-7809-E13A-5D3060EF5B50";
	setAttr ".t" -type "double3" 7.427 0 -2.881 ;
	setAttr ".r" -type "double3" 0 253.94 0 ;
	setAttr ".s" -type "double3" 0.903 0.903 0.903 ;
createNode transform -n "figure83" -p "|crowd|row4";
	rename -uid "55D4B5A4-3976-03FE-79CD-E5C8B373C8BB";
	setAttr ".t" -type "double3" 7.714 0 -3.845 ;
	setAttr ".r" -type "double3" 0 258.44 0 ;
	setAttr ".s" -type "double3" 1.099 1.099 1.099 ;
createNode transform -n "figure84" -p "|crowd|row4";
	rename -uid "F43BF8E3-EEFF-43EB-E3C1-FEBA26695A70";
	setAttr ".t" -type "double3" 7.755 0 -4.85 ;
	setAttr ".r" -type "double3" 0 255.88 0 ;
	setAttr ".s" -type "double3" 1.045 1.045 1.045 ;
createNode transform -n "figure85" -p "|crowd|row4";
	rename -uid "3AD66433-A756-FE5F-F41E-C3AF692DD182";
	setAttr ".t" -type "double3" 7.737 0 -5.854 ;
	setAttr ".r" -type "double3" 0 284.75 0 ;
	setAttr ".s" -type "double3" 1.011 1.011 1.011 ;
createNode transform -n "row5" -p "crowd";
	rename -uid "532AEE3E-77F3-79A2-893D-3177BD476EF3";
createNode transform -n "figure86" -p "|crowd|row5";
	rename -uid "0B197263-7296-9953-DABB-6EF660E065B6";
	setAttr ".t" -type "double3" -8.869 0 -6.054 ;
	setAttr ".r" -type "double3" 0 80.01 0 ;
	setAttr ".s" -type "double3" 0.993 0.993 0.993 ;
createNode transform -n "figure87" -p "|crowd|row5";
	rename -uid "545FE866-BF1B-FDD0-3FC5-98E2F929D075";
	setAttr ".t" -type "double3" -9.031 0 -5.051 ;
	setAttr ".r" -type "double3" 0 79.76 0 ;
	setAttr ".s" -type "double3" 0.933 0.933 0.933 ;
createNode transform -n "figure88" -p "|crowd|row5";
	rename -uid "07753249-26D2-8FE7-8578-43705E01ACEC";
	setAttr ".t" -type "double3" -8.746 0 -4.061 ;
	setAttr ".r" -type "double3" 0 95.28 0 ;
	setAttr ".s" -type "double3" 1.078 1.078 1.078 ;
createNode transform -n "figure89" -p "|crowd|row5";
	rename -uid "666A5FDC-59D2-BDAD-46A6-F360A603FF13";
	setAttr ".t" -type "double3" -8.754 0 -3.046 ;
	setAttr ".r" -type "double3" 0 105.67 0 ;
	setAttr ".s" -type "double3" 1.007 1.007 1.007 ;
createNode transform -n "figure90" -p "|crowd|row5";
	rename -uid "12F0033C-B905-A530-1819-0DD275087FA1";
	setAttr ".t" -type "double3" -8.536 0 -2.056 ;
	setAttr ".r" -type "double3" 0 100.08 0 ;
	setAttr ".s" -type "double3" 0.992 0.992 0.992 ;
createNode transform -n "figure91" -p "|crowd|row5";
	rename -uid "EC76A46D-64D4-301F-35B9-BB525E2BAE60";
	setAttr ".t" -type "double3" -7.931 0 -1.22 ;
	setAttr ".r" -type "double3" 0 101.76 0 ;
	setAttr ".s" -type "double3" 1.092 1.092 1.092 ;
createNode transform -n "figure92" -p "|crowd|row5";
	rename -uid "759419BD-04D3-4DBF-FE88-88740B9EA7E1";
	setAttr ".t" -type "double3" -7.672 0 -0.218 ;
	setAttr ".r" -type "double3" 0 123.12 0 ;
	setAttr ".s" -type "double3" 0.92 0.92 0.92 ;
createNode transform -n "figure93" -p "|crowd|row5";
	rename -uid "20AF03A3-9144-06C5-C2FB-DCF8E6981481";
	setAttr ".t" -type "double3" -6.98 0 0.53 ;
	setAttr ".r" -type "double3" 0 115.39 0 ;
	setAttr ".s" -type "double3" 1.079 1.079 1.079 ;
createNode transform -n "figure94" -p "|crowd|row5";
	rename -uid "36AE16BA-7383-B4A5-4088-FA5BD4964064";
	setAttr ".t" -type "double3" -6.376 0 1.34 ;
	setAttr ".r" -type "double3" 0 140.99 0 ;
	setAttr ".s" -type "double3" 1.081 1.081 1.081 ;
createNode transform -n "figure95" -p "|crowd|row5";
	rename -uid "386B16AD-F6FA-95AC-13E4-B96D91025BC4";
	setAttr ".t" -type "double3" -5.617 0 2.009 ;
	setAttr ".r" -type "double3" 0 137.52 0 ;
	setAttr ".s" -type "double3" 1.052 1.052 1.052 ;
createNode transform -n "figure96" -p "|crowd|row5";
	rename -uid "78C8AFEC-71C9-FA63-DFA4-4831113CDE40";
	setAttr ".t" -type "double3" -4.776 0 2.567 ;
	setAttr ".r" -type "double3" 0 140.43 0 ;
	setAttr ".s" -type "double3" 0.907 0.907 0.907 ;
createNode transform -n "figure97" -p "|crowd|row5";
	rename -uid "178C5AB3-40CC-E653-D302-E8C07CF445E3";
	setAttr ".t" -type "double3" -3.854 0 2.971 ;
	setAttr ".r" -type "double3" 0 142.42 0 ;
	setAttr ".s" -type "double3" 0.934 0.934 0.934 ;
createNode transform -n "figure98" -p "|crowd|row5";
	rename -uid "D9E1525B-9147-140D-BAC7-489156708D21";
	setAttr ".t" -type "double3" -2.924 0 3.325 ;
	setAttr ".r" -type "double3" 0 155.83 0 ;
	setAttr ".s" -type "double3" 1.04 1.04 1.04 ;
createNode transform -n "figure99" -p "|crowd|row5";
	rename -uid "3F1AB6A8-BDF8-EB44-A7B8-8AD654FAABE0";
	setAttr ".t" -type "double3" -1.962 0 3.566 ;
	setAttr ".r" -type "double3" 0 179.74 0 ;
	setAttr ".s" -type "double3" 0.939 0.939 0.939 ;
createNode transform -n "figure100" -p "|crowd|row5";
	rename -uid "B327BA30-479B-C392-CB65-7A027F4FDF58";
	setAttr ".t" -type "double3" -0.986 0 3.72 ;
	setAttr ".r" -type "double3" 0 180.85 0 ;
	setAttr ".s" -type "double3" 0.942 0.942 0.942 ;
createNode transform -n "figure101" -p "|crowd|row5";
	rename -uid "B53203C0-A4B9-2C16-8FEF-AC5EAE887477";
	setAttr ".t" -type "double3" 0 0 3.766 ;
	setAttr ".r" -type "double3" 0 176.11 0 ;
	setAttr ".s" -type "double3" 1.028 1.028 1.028 ;
createNode transform -n "figure102" -p "|crowd|row5";
	rename -uid "4140BFBC-74F5-71EA-4472-0366E08495D6";
	setAttr ".t" -type "double3" 0.991 0 3.762 ;
	setAttr ".r" -type "double3" 0 190.01 0 ;
	setAttr ".s" -type "double3" 0.958 0.958 0.958 ;
createNode transform -n "figure103" -p "|crowd|row5";
	rename -uid "F735436F-3458-5B39-614C-5E51687684B7";
	setAttr ".t" -type "double3" 2.005 0 3.751 ;
	setAttr ".r" -type "double3" 0 194.1 0 ;
	setAttr ".s" -type "double3" 0.942 0.942 0.942 ;
createNode transform -n "figure104" -p "|crowd|row5";
	rename -uid "62A394B2-CF1B-165C-B645-2C4C0F1E7442";
	setAttr ".t" -type "double3" 2.956 0 3.416 ;
	setAttr ".r" -type "double3" 0 202.19 0 ;
	setAttr ".s" -type "double3" 0.952 0.952 0.952 ;
createNode transform -n "figure105" -p "|crowd|row5";
	rename -uid "78A1D534-0E07-E2A8-FADC-A931C4CD87D0";
	setAttr ".t" -type "double3" 3.863 0 2.988 ;
	setAttr ".r" -type "double3" 0 215.28 0 ;
	setAttr ".s" -type "double3" 1.042 1.042 1.042 ;
createNode transform -n "figure106" -p "|crowd|row5";
	rename -uid "8991B8DA-B836-5AD6-0EFA-A268769D86B0";
	setAttr ".t" -type "double3" 4.784 0 2.58 ;
	setAttr ".r" -type "double3" 0 211.31 0 ;
	setAttr ".s" -type "double3" 0.939 0.939 0.939 ;
createNode transform -n "figure107" -p "|crowd|row5";
	rename -uid "E14A87B0-2865-1005-B3FC-4E5654E16A0E";
	setAttr ".t" -type "double3" 5.651 0 2.051 ;
	setAttr ".r" -type "double3" 0 211.85 0 ;
	setAttr ".s" -type "double3" 1.097 1.097 1.097 ;
createNode transform -n "figure108" -p "|crowd|row5";
	rename -uid "6F3D1486-495D-E641-2563-15F6ABF01A0F";
	setAttr ".t" -type "double3" 6.339 0 1.303 ;
	setAttr ".r" -type "double3" 0 216.46 0 ;
	setAttr ".s" -type "double3" 0.928 0.928 0.928 ;
createNode transform -n "figure109" -p "|crowd|row5";
	rename -uid "779922F9-3F52-3230-1D63-1CEE9EDE5B4A";
	setAttr ".t" -type "double3" 6.949 0 0.506 ;
	setAttr ".r" -type "double3" 0 229.24 0 ;
	setAttr ".s" -type "double3" 0.948 0.948 0.948 ;
createNode transform -n "figure110" -p "|crowd|row5";
	rename -uid "4CD6FC1F-3D42-5055-01E5-FD0DF000551D";
	setAttr ".t" -type "double3" 7.666 0 -0.221 ;
	setAttr ".r" -type "double3" 0 247.58 0 ;
	setAttr ".s" -type "double3" 0.925 0.925 0.925 ;
createNode transform -n "figure111" -p "|crowd|row5";
	rename -uid "75709A55-0088-C415-1FD6-360715462AF3";
	setAttr ".t" -type "double3" 7.977 0 -1.198 ;
	setAttr ".r" -type "double3" 0 233.16 0 ;
	setAttr ".s" -type "double3" 0.953 0.953 0.953 ;
createNode transform -n "figure112" -p "|crowd|row5";
	rename -uid "81D37B1F-8640-9B36-7C18-A5452218E1B1";
	setAttr ".t" -type "double3" 8.358 0 -2.117 ;
	setAttr ".r" -type "double3" 0 256.88 0 ;
	setAttr ".s" -type "double3" 0.991 0.991 0.991 ;
createNode transform -n "figure113" -p "|crowd|row5";
	rename -uid "B7F3B60C-7BCE-1BBF-BB07-A6181FDE983E";
	setAttr ".t" -type "double3" 8.783 0 -3.04 ;
	setAttr ".r" -type "double3" 0 266.4 0 ;
	setAttr ".s" -type "double3" 1.055 1.055 1.055 ;
createNode transform -n "figure114" -p "|crowd|row5";
	rename -uid "AFEB22E4-1106-F0E1-6D3B-352C012B6A79";
	setAttr ".t" -type "double3" 8.714 0 -4.064 ;
	setAttr ".r" -type "double3" 0 261.41 0 ;
	setAttr ".s" -type "double3" 1.083 1.083 1.083 ;
createNode transform -n "figure115" -p "|crowd|row5";
	rename -uid "36D35377-6D76-4B77-D7D8-40ECDEDD4142";
	setAttr ".t" -type "double3" 8.914 0 -5.05 ;
	setAttr ".r" -type "double3" 0 276.58 0 ;
	setAttr ".s" -type "double3" 1.016 1.016 1.016 ;
createNode transform -n "figure116" -p "|crowd|row5";
	rename -uid "2E688D02-71A0-54D8-4B49-E20D5F653E56";
	setAttr ".t" -type "double3" 8.935 0 -6.061 ;
	setAttr ".r" -type "double3" 0 276.61 0 ;
	setAttr ".s" -type "double3" 1.048 1.048 1.048 ;
createNode transform -n "row6" -p "crowd";
	rename -uid "B7F732E8-543A-318B-5CB5-277E05C0CD4F";
createNode transform -n "figure117" -p "|crowd|row6";
	rename -uid "54B87412-A2DF-25AB-687E-893CBC624B9C";
	setAttr ".t" -type "double3" -9.917 0 -6.243 ;
	setAttr ".r" -type "double3" 0 72.34 0 ;
	setAttr ".s" -type "double3" 1.092 1.092 1.092 ;
createNode transform -n "figure118" -p "|crowd|row6";
	rename -uid "EB861C72-215F-8FE0-C827-358EBEAA2A00";
	setAttr ".t" -type "double3" -10.043 0 -5.25 ;
	setAttr ".r" -type "double3" 0 75.05 0 ;
	setAttr ".s" -type "double3" 1.021 1.021 1.021 ;
createNode transform -n "figure119" -p "|crowd|row6";
	rename -uid "20FB17E4-7F47-83CF-6668-4398E8C909DA";
	setAttr ".t" -type "double3" -10.022 0 -4.249 ;
	setAttr ".r" -type "double3" 0 88.95 0 ;
	setAttr ".s" -type "double3" 0.922 0.922 0.922 ;
createNode transform -n "figure120" -p "|crowd|row6";
	rename -uid "1B91016A-AC68-7C0A-F96C-E598A1D07B71";
	setAttr ".t" -type "double3" -9.935 0 -3.248 ;
	setAttr ".r" -type "double3" 0 106.83 0 ;
	setAttr ".s" -type "double3" 0.914 0.914 0.914 ;
createNode transform -n "figure121" -p "|crowd|row6";
	rename -uid "EC8F3784-DFA1-BC0B-9C6A-9DA425D547D8";
	setAttr ".t" -type "double3" -9.599 0 -2.299 ;
	setAttr ".r" -type "double3" 0 108.56 0 ;
	setAttr ".s" -type "double3" 0.912 0.912 0.912 ;
createNode transform -n "figure122" -p "|crowd|row6";
	rename -uid "7A467723-4C2F-AF73-1BED-A23751A96965";
	setAttr ".t" -type "double3" -9.358 0 -1.327 ;
	setAttr ".r" -type "double3" 0 100.74 0 ;
	setAttr ".s" -type "double3" 0.919 0.919 0.919 ;
createNode transform -n "figure123" -p "|crowd|row6";
	rename -uid "4A7F1F7C-6227-BC14-68D2-19AE0FBC11C1";
	setAttr ".t" -type "double3" -8.796 0 -0.491 ;
	setAttr ".r" -type "double3" 0 109.24 0 ;
	setAttr ".s" -type "double3" 0.958 0.958 0.958 ;
createNode transform -n "figure124" -p "|crowd|row6";
	rename -uid "A00245A8-031F-0998-1749-07377B730DE0";
	setAttr ".t" -type "double3" -8.469 0 0.47 ;
	setAttr ".r" -type "double3" 0 114.36 0 ;
	setAttr ".s" -type "double3" 0.997 0.997 0.997 ;
createNode transform -n "figure125" -p "|crowd|row6";
	rename -uid "14383E55-C57B-C405-1741-7ED138DDA8B6";
	setAttr ".t" -type "double3" -7.829 0 1.243 ;
	setAttr ".r" -type "double3" 0 130.98 0 ;
	setAttr ".s" -type "double3" 1.043 1.043 1.043 ;
createNode transform -n "figure126" -p "|crowd|row6";
	rename -uid "D4108022-1599-A74F-19A4-333CE1A57186";
	setAttr ".t" -type "double3" -7.215 0 2.038 ;
	setAttr ".r" -type "double3" 0 134.53 0 ;
	setAttr ".s" -type "double3" 0.997 0.997 0.997 ;
createNode transform -n "figure127" -p "|crowd|row6";
	rename -uid "3CF7F678-7D26-AA1B-578B-FB6AEFCD5679";
	setAttr ".t" -type "double3" -6.464 0 2.704 ;
	setAttr ".r" -type "double3" 0 143.23 0 ;
	setAttr ".s" -type "double3" 0.924 0.924 0.924 ;
createNode transform -n "figure128" -p "|crowd|row6";
	rename -uid "9C45C8DD-A06B-55B2-E4B3-2CA64FC3ECE6";
	setAttr ".t" -type "double3" -5.693 0 3.35 ;
	setAttr ".r" -type "double3" 0 155.49 0 ;
	setAttr ".s" -type "double3" 1.087 1.087 1.087 ;
createNode transform -n "figure129" -p "|crowd|row6";
	rename -uid "0BFBA927-D9D0-BB66-007B-EC2834F2A795";
	setAttr ".t" -type "double3" -4.85 0 3.906 ;
	setAttr ".r" -type "double3" 0 161.53 0 ;
	setAttr ".s" -type "double3" 0.995 0.995 0.995 ;
createNode transform -n "figure130" -p "|crowd|row6";
	rename -uid "9DC49C1A-BD64-7E0C-F176-683876B0CA43";
	setAttr ".t" -type "double3" -3.862 0 4.161 ;
	setAttr ".r" -type "double3" 0 148.53 0 ;
	setAttr ".s" -type "double3" 0.99 0.99 0.99 ;
createNode transform -n "figure131" -p "|crowd|row6";
	rename -uid "67D57D0E-C7F9-7C44-0143-D168BFE51C1A";
	setAttr ".t" -type "double3" -2.942 0 4.537 ;
	setAttr ".r" -type "double3" 0 173.25 0 ;
	setAttr ".s" -type "double3" 0.966 0.966 0.966 ;
createNode transform -n "figure132" -p "|crowd|row6";
	rename -uid "32522A0B-DE73-F10B-E606-7F31D2078635";
	setAttr ".t" -type "double3" -1.973 0 4.761 ;
	setAttr ".r" -type "double3" 0 169.08 0 ;
	setAttr ".s" -type "double3" 0.904 0.904 0.904 ;
createNode transform -n "figure133" -p "|crowd|row6";
	rename -uid "E3A1815B-607A-A081-3A09-886E7C28E07D";
	setAttr ".t" -type "double3" -0.999 0 4.981 ;
	setAttr ".r" -type "double3" 0 169.28 0 ;
	setAttr ".s" -type "double3" 0.979 0.979 0.979 ;
createNode transform -n "figure134" -p "|crowd|row6";
	rename -uid "9CE5F1A2-15D6-B054-2207-D007836E5F6D";
	setAttr ".t" -type "double3" 0 0 5.072 ;
	setAttr ".r" -type "double3" 0 184.69 0 ;
	setAttr ".s" -type "double3" 0.982 0.982 0.982 ;
createNode transform -n "figure135" -p "|crowd|row6";
	rename -uid "BD4DD5BD-5883-A4C9-C27C-B958FAF129A9";
	setAttr ".t" -type "double3" 0.991 0 4.906 ;
	setAttr ".r" -type "double3" 0 172.89 0 ;
	setAttr ".s" -type "double3" 1.031 1.031 1.031 ;
createNode transform -n "figure136" -p "|crowd|row6";
	rename -uid "67787448-121F-C0F7-A6A8-7342C229C76D";
	setAttr ".t" -type "double3" 1.966 0 4.724 ;
	setAttr ".r" -type "double3" 0 185.17 0 ;
	setAttr ".s" -type "double3" 0.913 0.913 0.913 ;
createNode transform -n "figure137" -p "|crowd|row6";
	rename -uid "68D8E2AB-628E-CFAA-A50A-68CD090FCC21";
	setAttr ".t" -type "double3" 2.962 0 4.603 ;
	setAttr ".r" -type "double3" 0 198.23 0 ;
	setAttr ".s" -type "double3" 0.952 0.952 0.952 ;
createNode transform -n "figure138" -p "|crowd|row6";
	rename -uid "AB7704E6-39E9-2821-6B47-7AAE3A96CCDC";
	setAttr ".t" -type "double3" 3.833 0 4.093 ;
	setAttr ".r" -type "double3" 0 189.96 0 ;
	setAttr ".s" -type "double3" 1.08 1.08 1.08 ;
createNode transform -n "figure139" -p "|crowd|row6";
	rename -uid "B77F756A-7CF3-A17D-A891-CCCE60C160E4";
	setAttr ".t" -type "double3" 4.829 0 3.867 ;
	setAttr ".r" -type "double3" 0 199.69 0 ;
	setAttr ".s" -type "double3" 1.056 1.056 1.056 ;
createNode transform -n "figure140" -p "|crowd|row6";
	rename -uid "11EAB735-3DDA-89E9-7064-FAA1565EA9A3";
	setAttr ".t" -type "double3" 5.567 0 3.165 ;
	setAttr ".r" -type "double3" 0 214.61 0 ;
	setAttr ".s" -type "double3" 1.09 1.09 1.09 ;
createNode transform -n "figure141" -p "|crowd|row6";
	rename -uid "2A29B21A-D6B1-1382-D0AD-41E1EED8D7E9";
	setAttr ".t" -type "double3" 6.495 0 2.741 ;
	setAttr ".r" -type "double3" 0 209.94 0 ;
	setAttr ".s" -type "double3" 1.099 1.099 1.099 ;
createNode transform -n "figure142" -p "|crowd|row6";
	rename -uid "7393822E-3205-7A44-85AB-4172B4E12D2D";
	setAttr ".t" -type "double3" 7.139 0 1.963 ;
	setAttr ".r" -type "double3" 0 239.6 0 ;
	setAttr ".s" -type "double3" 0.95 0.95 0.95 ;
createNode transform -n "figure143" -p "|crowd|row6";
	rename -uid "F58965C3-563B-4EE3-1A09-B6D75DF9FBAC";
	setAttr ".t" -type "double3" 7.838 0 1.25 ;
	setAttr ".r" -type "double3" 0 232.11 0 ;
	setAttr ".s" -type "double3" 1.096 1.096 1.096 ;
createNode transform -n "figure144" -p "|crowd|row6";
	rename -uid "6FA737CA-9E22-C6E5-3745-2E47CB1E5183";
	setAttr ".t" -type "double3" 8.369 0 0.405 ;
	setAttr ".r" -type "double3" 0 232.16 0 ;
	setAttr ".s" -type "double3" 0.958 0.958 0.958 ;
createNode transform -n "figure145" -p "|crowd|row6";
	rename -uid "612512DB-6566-B784-79FA-4D645E6730E3";
	setAttr ".t" -type "double3" 8.877 0 -0.449 ;
	setAttr ".r" -type "double3" 0 240.33 0 ;
	setAttr ".s" -type "double3" 1.068 1.068 1.068 ;
createNode transform -n "figure146" -p "|crowd|row6";
	rename -uid "18296DC9-0ACC-9EFF-89CB-62B4C0831335";
	setAttr ".t" -type "double3" 9.27 0 -1.362 ;
	setAttr ".r" -type "double3" 0 240.01 0 ;
	setAttr ".s" -type "double3" 0.995 0.995 0.995 ;
createNode transform -n "figure147" -p "|crowd|row6";
	rename -uid "71C731E9-4CDC-9FD0-B6DF-EF61BDAC66A9";
	setAttr ".t" -type "double3" 9.722 0 -2.265 ;
	setAttr ".r" -type "double3" 0 245.8 0 ;
	setAttr ".s" -type "double3" 1.005 1.005 1.005 ;
createNode transform -n "figure148" -p "|crowd|row6";
	rename -uid "007167BE-E359-686D-42B4-E6C6A7BBB460";
	setAttr ".t" -type "double3" 9.938 0 -3.248 ;
	setAttr ".r" -type "double3" 0 247.34 0 ;
	setAttr ".s" -type "double3" 1.002 1.002 1.002 ;
createNode transform -n "figure149" -p "|crowd|row6";
	rename -uid "3A99A1D2-F6B6-1D32-CE48-BEA76B449AF6";
	setAttr ".t" -type "double3" 10.097 0 -4.243 ;
	setAttr ".r" -type "double3" 0 253.12 0 ;
	setAttr ".s" -type "double3" 0.933 0.933 0.933 ;
createNode transform -n "figure150" -p "|crowd|row6";
	rename -uid "2BA563E6-916D-F50B-84B8-9CCC1FD0A372";
	setAttr ".t" -type "double3" 10.047 0 -5.251 ;
	setAttr ".r" -type "double3" 0 265.4 0 ;
	setAttr ".s" -type "double3" 0.976 0.976 0.976 ;
createNode transform -n "figure151" -p "|crowd|row6";
	rename -uid "E6A56A2D-1421-25C8-49AB-EC73D73B5063";
	setAttr ".t" -type "double3" 9.958 0 -6.248 ;
	setAttr ".r" -type "double3" 0 281.12 0 ;
	setAttr ".s" -type "double3" 1.008 1.008 1.008 ;
createNode transform -n "row7" -p "crowd";
	rename -uid "B44BE855-1CA4-82FC-AAFD-D6807BFEFA01";
createNode transform -n "figure152" -p "|crowd|row7";
	rename -uid "348C4543-19E9-479A-28B0-1E49AD68256D";
	setAttr ".t" -type "double3" -11.092 0 -6.448 ;
	setAttr ".r" -type "double3" 0 92.53 0 ;
	setAttr ".s" -type "double3" 1.097 1.097 1.097 ;
createNode transform -n "figure153" -p "|crowd|row7";
	rename -uid "8FBB6EF2-4E6D-C578-4BB1-6656A2D30739";
	setAttr ".t" -type "double3" -10.972 0 -5.442 ;
	setAttr ".r" -type "double3" 0 75.21 0 ;
	setAttr ".s" -type "double3" 1.017 1.017 1.017 ;
createNode transform -n "figure154" -p "|crowd|row7";
	rename -uid "86323E75-DCCE-16F2-5D06-76D818D1A7F1";
	setAttr ".t" -type "double3" -11.232 0 -4.447 ;
	setAttr ".r" -type "double3" 0 85.14 0 ;
	setAttr ".s" -type "double3" 1.083 1.083 1.083 ;
createNode transform -n "figure155" -p "|crowd|row7";
	rename -uid "BDDFA9D9-B053-852B-4E4D-1A75259C5884";
	setAttr ".t" -type "double3" -10.997 0 -3.464 ;
	setAttr ".r" -type "double3" 0 86.26 0 ;
	setAttr ".s" -type "double3" 1.066 1.066 1.066 ;
createNode transform -n "figure156" -p "|crowd|row7";
	rename -uid "AD76343F-B9A1-E20C-4179-6E09C48C99D9";
	setAttr ".t" -type "double3" -10.878 0 -2.473 ;
	setAttr ".r" -type "double3" 0 97.09 0 ;
	setAttr ".s" -type "double3" 0.98 0.98 0.98 ;
createNode transform -n "figure157" -p "|crowd|row7";
	rename -uid "3675F804-70FD-D681-2D4C-2E1B5F29ADD8";
	setAttr ".t" -type "double3" -10.608 0 -1.511 ;
	setAttr ".r" -type "double3" 0 109.02 0 ;
	setAttr ".s" -type "double3" 1.067 1.067 1.067 ;
createNode transform -n "figure158" -p "|crowd|row7";
	rename -uid "A85B4393-6D36-92EF-1810-6FC94C40938F";
	setAttr ".t" -type "double3" -10.059 0 -0.661 ;
	setAttr ".r" -type "double3" 0 126.32 0 ;
	setAttr ".s" -type "double3" 1.074 1.074 1.074 ;
createNode transform -n "figure159" -p "|crowd|row7";
	rename -uid "59331727-939A-705C-5A33-FE0E3BB0B96F";
	setAttr ".t" -type "double3" -9.795 0 0.31 ;
	setAttr ".r" -type "double3" 0 108.05 0 ;
	setAttr ".s" -type "double3" 0.909 0.909 0.909 ;
createNode transform -n "figure160" -p "|crowd|row7";
	rename -uid "F1D61F74-DCEC-FC7D-8B9E-44E964A55E82";
	setAttr ".t" -type "double3" -9.127 0 1.062 ;
	setAttr ".r" -type "double3" 0 118.08 0 ;
	setAttr ".s" -type "double3" 1.008 1.008 1.008 ;
createNode transform -n "figure161" -p "|crowd|row7";
	rename -uid "FCD12292-CFC4-1A83-3406-74ACC7876880";
	setAttr ".t" -type "double3" -8.669 0 1.949 ;
	setAttr ".r" -type "double3" 0 115.56 0 ;
	setAttr ".s" -type "double3" 1.04 1.04 1.04 ;
createNode transform -n "figure162" -p "|crowd|row7";
	rename -uid "9CE71C9D-EF51-5215-6E3F-7554FAED17E0";
	setAttr ".t" -type "double3" -7.958 0 2.644 ;
	setAttr ".r" -type "double3" 0 136.91 0 ;
	setAttr ".s" -type "double3" 0.935 0.935 0.935 ;
createNode transform -n "figure163" -p "|crowd|row7";
	rename -uid "89F6DC5E-4EDD-6D7C-97A4-D1182DDF6F8B";
	setAttr ".t" -type "double3" -7.228 0 3.307 ;
	setAttr ".r" -type "double3" 0 125.95 0 ;
	setAttr ".s" -type "double3" 1.085 1.085 1.085 ;
createNode transform -n "figure164" -p "|crowd|row7";
	rename -uid "9695D52F-291F-64C8-8443-11A78F1EB934";
	setAttr ".t" -type "double3" -6.581 0 4.092 ;
	setAttr ".r" -type "double3" 0 147.12 0 ;
	setAttr ".s" -type "double3" 0.909 0.909 0.909 ;
createNode transform -n "figure165" -p "|crowd|row7";
	rename -uid "44E35B3A-7688-D8D1-BDF1-8BF6D5E71444";
	setAttr ".t" -type "double3" -5.738 0 4.637 ;
	setAttr ".r" -type "double3" 0 138.33 0 ;
	setAttr ".s" -type "double3" 0.921 0.921 0.921 ;
createNode transform -n "figure166" -p "|crowd|row7";
	rename -uid "4D7FEBFB-3477-B509-CBB5-00C4BD3E714E";
	setAttr ".t" -type "double3" -4.809 0 5.018 ;
	setAttr ".r" -type "double3" 0 159.76 0 ;
	setAttr ".s" -type "double3" 0.943 0.943 0.943 ;
createNode transform -n "figure167" -p "|crowd|row7";
	rename -uid "0F4B0805-29E3-8D6C-4D91-75385AC1AB80";
	setAttr ".t" -type "double3" -3.904 0 5.436 ;
	setAttr ".r" -type "double3" 0 170.81 0 ;
	setAttr ".s" -type "double3" 1.022 1.022 1.022 ;
createNode transform -n "figure168" -p "|crowd|row7";
	rename -uid "A973C53E-5A29-C7AE-5737-42051810AC34";
	setAttr ".t" -type "double3" -2.953 0 5.732 ;
	setAttr ".r" -type "double3" 0 171.93 0 ;
	setAttr ".s" -type "double3" 1.002 1.002 1.002 ;
createNode transform -n "figure169" -p "|crowd|row7";
	rename -uid "5644623B-AFD7-D61E-C110-EA103D68794A";
	setAttr ".t" -type "double3" -1.995 0 6.028 ;
	setAttr ".r" -type "double3" 0 182.01 0 ;
	setAttr ".s" -type "double3" 0.935 0.935 0.935 ;
createNode transform -n "figure170" -p "|crowd|row7";
	rename -uid "EB8F4A45-7628-C17F-CBFA-8171F2587254";
	setAttr ".t" -type "double3" -0.979 0 5.914 ;
	setAttr ".r" -type "double3" 0 184.47 0 ;
	setAttr ".s" -type "double3" 1.088 1.088 1.088 ;
createNode transform -n "figure171" -p "|crowd|row7";
	rename -uid "B7F22E18-BC8B-C4FA-BE49-F837F2D261DA";
	setAttr ".t" -type "double3" 0 0 6.023 ;
	setAttr ".r" -type "double3" 0 181.93 0 ;
	setAttr ".s" -type "double3" 1.02 1.02 1.02 ;
createNode transform -n "figure172" -p "|crowd|row7";
	rename -uid "1BB2AD41-6986-B8EE-CA15-62619BA21671";
	setAttr ".t" -type "double3" 0.988 0 6.013 ;
	setAttr ".r" -type "double3" 0 177.98 0 ;
	setAttr ".s" -type "double3" 0.912 0.912 0.912 ;
createNode transform -n "figure173" -p "|crowd|row7";
	rename -uid "11E71D2F-24CD-65BA-5512-A3C245D1ED5A";
	setAttr ".t" -type "double3" 1.992 0 6.011 ;
	setAttr ".r" -type "double3" 0 184.4 0 ;
	setAttr ".s" -type "double3" 0.999 0.999 0.999 ;
createNode transform -n "figure174" -p "|crowd|row7";
	rename -uid "28B0D127-2EE6-26A5-4AAE-9393C67029A4";
	setAttr ".t" -type "double3" 2.927 0 5.638 ;
	setAttr ".r" -type "double3" 0 184.9 0 ;
	setAttr ".s" -type "double3" 0.987 0.987 0.987 ;
createNode transform -n "figure175" -p "|crowd|row7";
	rename -uid "8E57D95C-4032-BED2-B282-CB0E283FDC9A";
	setAttr ".t" -type "double3" 3.904 0 5.435 ;
	setAttr ".r" -type "double3" 0 198.43 0 ;
	setAttr ".s" -type "double3" 1.036 1.036 1.036 ;
createNode transform -n "figure176" -p "|crowd|row7";
	rename -uid "A3E8CB50-3CAD-E502-B99E-34A6A6EA2DE8";
	setAttr ".t" -type "double3" 4.806 0 5.013 ;
	setAttr ".r" -type "double3" 0 217.35 0 ;
	setAttr ".s" -type "double3" 1.013 1.013 1.013 ;
createNode transform -n "figure177" -p "|crowd|row7";
	rename -uid "975DACB1-8153-AF3F-96D1-D4C37FD7A891";
	setAttr ".t" -type "double3" 5.672 0 4.527 ;
	setAttr ".r" -type "double3" 0 217.45 0 ;
	setAttr ".s" -type "double3" 1.067 1.067 1.067 ;
createNode transform -n "figure178" -p "|crowd|row7";
	rename -uid "6659EF50-9081-9517-CBF5-FF033F781B4D";
	setAttr ".t" -type "double3" 6.489 0 3.965 ;
	setAttr ".r" -type "double3" 0 208.16 0 ;
	setAttr ".s" -type "double3" 0.975 0.975 0.975 ;
createNode transform -n "figure179" -p "|crowd|row7";
	rename -uid "08ADB734-360C-520C-7F4F-3199C8AC400F";
	setAttr ".t" -type "double3" 7.233 0 3.313 ;
	setAttr ".r" -type "double3" 0 214.88 0 ;
	setAttr ".s" -type "double3" 1.057 1.057 1.057 ;
createNode transform -n "figure180" -p "|crowd|row7";
	rename -uid "FAE0B334-0DA0-D99C-1D04-C6B2EDE4B44B";
	setAttr ".t" -type "double3" 8.029 0 2.712 ;
	setAttr ".r" -type "double3" 0 214.02 0 ;
	setAttr ".s" -type "double3" 1.042 1.042 1.042 ;
createNode transform -n "figure181" -p "|crowd|row7";
	rename -uid "F35F602B-7ADA-87D5-AC4B-1DBA5FDABD47";
	setAttr ".t" -type "double3" 8.575 0 1.874 ;
	setAttr ".r" -type "double3" 0 239.75 0 ;
	setAttr ".s" -type "double3" 1.065 1.065 1.065 ;
createNode transform -n "figure182" -p "|crowd|row7";
	rename -uid "5D237142-586F-4FE5-269B-EDFBA3D0B95F";
	setAttr ".t" -type "double3" 9.192 0 1.105 ;
	setAttr ".r" -type "double3" 0 229.37 0 ;
	setAttr ".s" -type "double3" 1.056 1.056 1.056 ;
createNode transform -n "figure183" -p "|crowd|row7";
	rename -uid "DEDED813-77D5-3C20-589C-91C2CDC075AB";
	setAttr ".t" -type "double3" 9.75 0 0.286 ;
	setAttr ".r" -type "double3" 0 241.27 0 ;
	setAttr ".s" -type "double3" 1.081 1.081 1.081 ;
createNode transform -n "figure184" -p "|crowd|row7";
	rename -uid "AEA1B3F4-8DB6-706A-7F32-EE6A831F74A5";
	setAttr ".t" -type "double3" 10.212 0 -0.595 ;
	setAttr ".r" -type "double3" 0 258.17 0 ;
	setAttr ".s" -type "double3" 1.017 1.017 1.017 ;
createNode transform -n "figure185" -p "|crowd|row7";
	rename -uid "4F665692-0901-037B-F6E9-1A527832BC77";
	setAttr ".t" -type "double3" 10.647 0 -1.498 ;
	setAttr ".r" -type "double3" 0 246.38 0 ;
	setAttr ".s" -type "double3" 1.032 1.032 1.032 ;
createNode transform -n "figure186" -p "|crowd|row7";
	rename -uid "9676696F-295F-5510-3BEA-6046F68C354C";
	setAttr ".t" -type "double3" 10.821 0 -2.486 ;
	setAttr ".r" -type "double3" 0 248.91 0 ;
	setAttr ".s" -type "double3" 1.053 1.053 1.053 ;
createNode transform -n "figure187" -p "|crowd|row7";
	rename -uid "8502CD2E-2BFE-0207-B774-687910B8BB01";
	setAttr ".t" -type "double3" 11.001 0 -3.464 ;
	setAttr ".r" -type "double3" 0 249.07 0 ;
	setAttr ".s" -type "double3" 1.062 1.062 1.062 ;
createNode transform -n "figure188" -p "|crowd|row7";
	rename -uid "06119D18-3D80-32C8-435D-3D3DBF4B397D";
	setAttr ".t" -type "double3" 10.995 0 -4.458 ;
	setAttr ".r" -type "double3" 0 265.18 0 ;
	setAttr ".s" -type "double3" 0.921 0.921 0.921 ;
createNode transform -n "figure189" -p "|crowd|row7";
	rename -uid "F56F5548-F5AE-5B3B-871A-31F31F5FDD85";
	setAttr ".t" -type "double3" 11.128 0 -5.448 ;
	setAttr ".r" -type "double3" 0 275.15 0 ;
	setAttr ".s" -type "double3" 0.904 0.904 0.904 ;
createNode transform -n "figure190" -p "|crowd|row7";
	rename -uid "FB6E5667-8F5D-581C-B7A1-79BA415433C0";
	setAttr ".t" -type "double3" 10.966 0 -6.431 ;
	setAttr ".r" -type "double3" 0 272.88 0 ;
	setAttr ".s" -type "double3" 0.949 0.949 0.949 ;
createNode transform -n "row8" -p "crowd";
	rename -uid "C7A8532D-4FF5-77F0-1DB8-85D24D84E3D0";
createNode transform -n "figure191" -p "|crowd|row8";
	rename -uid "36651D8E-DFE6-6787-E881-E469B1B7E3E8";
	setAttr ".t" -type "double3" -12.15 0 -6.637 ;
	setAttr ".r" -type "double3" 0 93.09 0 ;
	setAttr ".s" -type "double3" 1.055 1.055 1.055 ;
createNode transform -n "figure192" -p "|crowd|row8";
	rename -uid "20338070-317E-6941-ED04-5E96213442AE";
	setAttr ".t" -type "double3" -12.314 0 -5.65 ;
	setAttr ".r" -type "double3" 0 86.81 0 ;
	setAttr ".s" -type "double3" 1.052 1.052 1.052 ;
createNode transform -n "figure193" -p "|crowd|row8";
	rename -uid "9008B549-AC95-A696-CB19-6AAE17C76EBC";
	setAttr ".t" -type "double3" -12.172 0 -4.654 ;
	setAttr ".r" -type "double3" 0 97.36 0 ;
	setAttr ".s" -type "double3" 1.1 1.1 1.1 ;
createNode transform -n "figure194" -p "|crowd|row8";
	rename -uid "ADC64545-5E9F-C0A7-1853-BABA69F2CA93";
	setAttr ".t" -type "double3" -12.238 0 -3.653 ;
	setAttr ".r" -type "double3" 0 88.68 0 ;
	setAttr ".s" -type "double3" 1.091 1.091 1.091 ;
createNode transform -n "figure195" -p "|crowd|row8";
	rename -uid "A1799AE6-2058-6598-7805-6A16C579F87C";
	setAttr ".t" -type "double3" -11.931 0 -2.696 ;
	setAttr ".r" -type "double3" 0 112.55 0 ;
	setAttr ".s" -type "double3" 0.939 0.939 0.939 ;
createNode transform -n "figure196" -p "|crowd|row8";
	rename -uid "D4CC60F0-2D96-9C69-453D-87E1D3A34359";
	setAttr ".t" -type "double3" -11.658 0 -1.749 ;
	setAttr ".r" -type "double3" 0 92.29 0 ;
	setAttr ".s" -type "double3" 1.057 1.057 1.057 ;
createNode transform -n "figure197" -p "|crowd|row8";
	rename -uid "E1D78F20-1F55-53A0-34C4-40C029960143";
	setAttr ".t" -type "double3" -11.516 0 -0.756 ;
	setAttr ".r" -type "double3" 0 123.95 0 ;
	setAttr ".s" -type "double3" 1.032 1.032 1.032 ;
createNode transform -n "figure198" -p "|crowd|row8";
	rename -uid "2D95A25D-21AB-760C-74F7-7BF38770112F";
	setAttr ".t" -type "double3" -10.985 0 0.095 ;
	setAttr ".r" -type "double3" 0 112.57 0 ;
	setAttr ".s" -type "double3" 0.94 0.94 0.94 ;
createNode transform -n "figure199" -p "|crowd|row8";
	rename -uid "E32B5EC3-927A-969B-E54E-CD3B8ECDA619";
	setAttr ".t" -type "double3" -10.67 0 1.045 ;
	setAttr ".r" -type "double3" 0 106.51 0 ;
	setAttr ".s" -type "double3" 0.93 0.93 0.93 ;
createNode transform -n "figure200" -p "|crowd|row8";
	rename -uid "148A8E18-3880-BC5F-4B58-2A6489F49333";
	setAttr ".t" -type "double3" -10.213 0 1.937 ;
	setAttr ".r" -type "double3" 0 121.89 0 ;
	setAttr ".s" -type "double3" 1.099 1.099 1.099 ;
createNode transform -n "figure201" -p "|crowd|row8";
	rename -uid "9925BA77-4966-5F5C-9B8B-12F5B27308D4";
	setAttr ".t" -type "double3" -9.609 0 2.736 ;
	setAttr ".r" -type "double3" 0 134.72 0 ;
	setAttr ".s" -type "double3" 1.02 1.02 1.02 ;
createNode transform -n "figure202" -p "|crowd|row8";
	rename -uid "C329D958-D1DF-087A-CAC4-7C16812FC915";
	setAttr ".t" -type "double3" -8.819 0 3.366 ;
	setAttr ".r" -type "double3" 0 143.06 0 ;
	setAttr ".s" -type "double3" 1.032 1.032 1.032 ;
createNode transform -n "figure203" -p "|crowd|row8";
	rename -uid "63F3AFE5-FC18-6CEE-9A1B-7CAEBEEDFFE5";
	setAttr ".t" -type "double3" -8.09 0 4.029 ;
	setAttr ".r" -type "double3" 0 135.31 0 ;
	setAttr ".s" -type "double3" 0.943 0.943 0.943 ;
createNode transform -n "figure204" -p "|crowd|row8";
	rename -uid "5AC72A06-A262-99FE-62C4-6768F76AD286";
	setAttr ".t" -type "double3" -7.446 0 4.807 ;
	setAttr ".r" -type "double3" 0 155.17 0 ;
	setAttr ".s" -type "double3" 0.997 0.997 0.997 ;
createNode transform -n "figure205" -p "|crowd|row8";
	rename -uid "686AA579-4A69-4A6C-4AF8-262EEDF302EC";
	setAttr ".t" -type "double3" -6.585 0 5.313 ;
	setAttr ".r" -type "double3" 0 133.9 0 ;
	setAttr ".s" -type "double3" 0.937 0.937 0.937 ;
createNode transform -n "figure206" -p "|crowd|row8";
	rename -uid "BC4EEE3B-9FE2-E157-3667-6DE3149A54BC";
	setAttr ".t" -type "double3" -5.769 0 5.893 ;
	setAttr ".r" -type "double3" 0 139.54 0 ;
	setAttr ".s" -type "double3" 1.068 1.068 1.068 ;
createNode transform -n "figure207" -p "|crowd|row8";
	rename -uid "3FA4E30D-5C15-E266-43A8-9692C42628C6";
	setAttr ".t" -type "double3" -4.845 0 6.273 ;
	setAttr ".r" -type "double3" 0 147.93 0 ;
	setAttr ".s" -type "double3" 1.069 1.069 1.069 ;
createNode transform -n "figure208" -p "|crowd|row8";
	rename -uid "0D08F747-EECF-0835-B5C8-583381F9ECB0";
	setAttr ".t" -type "double3" -3.872 0 6.503 ;
	setAttr ".r" -type "double3" 0 173.79 0 ;
	setAttr ".s" -type "double3" 0.961 0.961 0.961 ;
createNode transform -n "figure209" -p "|crowd|row8";
	rename -uid "B79CDE31-BD1C-E8DA-6008-2D1DB2FC1884";
	setAttr ".t" -type "double3" -2.943 0 6.843 ;
	setAttr ".r" -type "double3" 0 153.65 0 ;
	setAttr ".s" -type "double3" 0.98 0.98 0.98 ;
createNode transform -n "figure210" -p "|crowd|row8";
	rename -uid "C61FBC61-CCB0-EB28-0624-EE42BF6B964B";
	setAttr ".t" -type "double3" -1.967 0 7.011 ;
	setAttr ".r" -type "double3" 0 180.24 0 ;
	setAttr ".s" -type "double3" 0.912 0.912 0.912 ;
createNode transform -n "figure211" -p "|crowd|row8";
	rename -uid "F6B164D9-6D1C-DA6C-C2BD-E577DEF33820";
	setAttr ".t" -type "double3" -0.986 0 7.122 ;
	setAttr ".r" -type "double3" 0 165.57 0 ;
	setAttr ".s" -type "double3" 0.99 0.99 0.99 ;
createNode transform -n "figure212" -p "|crowd|row8";
	rename -uid "5CB8869A-C512-CCA3-0DA7-13172BDC97A0";
	setAttr ".t" -type "double3" 0 0 7.126 ;
	setAttr ".r" -type "double3" 0 175.67 0 ;
	setAttr ".s" -type "double3" 0.989 0.989 0.989 ;
createNode transform -n "figure213" -p "|crowd|row8";
	rename -uid "60A6F30E-55CE-B9D4-369A-DC4A90B2ACF7";
	setAttr ".t" -type "double3" 0.988 0 7.141 ;
	setAttr ".r" -type "double3" 0 177.4 0 ;
	setAttr ".s" -type "double3" 0.914 0.914 0.914 ;
createNode transform -n "figure214" -p "|crowd|row8";
	rename -uid "F235269A-83F5-8368-6095-2B0F5F224AFD";
	setAttr ".t" -type "double3" 1.978 0 7.078 ;
	setAttr ".r" -type "double3" 0 187.87 0 ;
	setAttr ".s" -type "double3" 1.016 1.016 1.016 ;
createNode transform -n "figure215" -p "|crowd|row8";
	rename -uid "D783FA9E-15E2-DAA4-C310-0512E01ECA37";
	setAttr ".t" -type "double3" 2.946 0 6.855 ;
	setAttr ".r" -type "double3" 0 182.7 0 ;
	setAttr ".s" -type "double3" 0.929 0.929 0.929 ;
createNode transform -n "figure216" -p "|crowd|row8";
	rename -uid "555C2A1E-D6E6-189E-2529-24AE5DCC6F53";
	setAttr ".t" -type "double3" 3.849 0 6.434 ;
	setAttr ".r" -type "double3" 0 187.05 0 ;
	setAttr ".s" -type "double3" 1.033 1.033 1.033 ;
createNode transform -n "figure217" -p "|crowd|row8";
	rename -uid "31EEB917-5FE6-6A95-C43E-BA9707B0D450";
	setAttr ".t" -type "double3" 4.792 0 6.15 ;
	setAttr ".r" -type "double3" 0 214.3 0 ;
	setAttr ".s" -type "double3" 1.03 1.03 1.03 ;
createNode transform -n "figure218" -p "|crowd|row8";
	rename -uid "441C968C-5761-262C-B5E1-CA21C42F821D";
	setAttr ".t" -type "double3" 5.739 0 5.837 ;
	setAttr ".r" -type "double3" 0 219.12 0 ;
	setAttr ".s" -type "double3" 0.999 0.999 0.999 ;
createNode transform -n "figure219" -p "|crowd|row8";
	rename -uid "226A2C76-564C-6F6F-FBD3-725B6B5453E6";
	setAttr ".t" -type "double3" 6.522 0 5.215 ;
	setAttr ".r" -type "double3" 0 225.43 0 ;
	setAttr ".s" -type "double3" 1.061 1.061 1.061 ;
createNode transform -n "figure220" -p "|crowd|row8";
	rename -uid "D51EDCCD-F032-6E9C-1013-98603306B54C";
	setAttr ".t" -type "double3" 7.406 0 4.754 ;
	setAttr ".r" -type "double3" 0 221 0 ;
	setAttr ".s" -type "double3" 1.088 1.088 1.088 ;
createNode transform -n "figure221" -p "|crowd|row8";
	rename -uid "AB7EAD18-2E9B-781F-D75B-5E10C5E4BD57";
	setAttr ".t" -type "double3" 8.178 0 4.127 ;
	setAttr ".r" -type "double3" 0 223.25 0 ;
	setAttr ".s" -type "double3" 1.084 1.084 1.084 ;
createNode transform -n "figure222" -p "|crowd|row8";
	rename -uid "1171AE98-64F3-EEB8-CAC5-01FC6A026C28";
	setAttr ".t" -type "double3" 8.879 0 3.423 ;
	setAttr ".r" -type "double3" 0 232.05 0 ;
	setAttr ".s" -type "double3" 1.094 1.094 1.094 ;
createNode transform -n "figure223" -p "|crowd|row8";
	rename -uid "1920DB9C-146E-0DF4-7C0B-32B3B9FB048D";
	setAttr ".t" -type "double3" 9.587 0 2.718 ;
	setAttr ".r" -type "double3" 0 227.98 0 ;
	setAttr ".s" -type "double3" 1.056 1.056 1.056 ;
createNode transform -n "figure224" -p "|crowd|row8";
	rename -uid "91BB5786-B4E8-2FA7-9796-B3F9EA0F99F1";
	setAttr ".t" -type "double3" 10.018 0 1.805 ;
	setAttr ".r" -type "double3" 0 236.38 0 ;
	setAttr ".s" -type "double3" 0.936 0.936 0.936 ;
createNode transform -n "figure225" -p "|crowd|row8";
	rename -uid "E793B17C-0213-5F11-2DF3-20311F933D80";
	setAttr ".t" -type "double3" 10.538 0 0.971 ;
	setAttr ".r" -type "double3" 0 229.31 0 ;
	setAttr ".s" -type "double3" 0.937 0.937 0.937 ;
createNode transform -n "figure226" -p "|crowd|row8";
	rename -uid "0C295FC8-BD6C-6752-E458-8C0CD270F85F";
	setAttr ".t" -type "double3" 10.993 0 0.099 ;
	setAttr ".r" -type "double3" 0 236.1 0 ;
	setAttr ".s" -type "double3" 1.074 1.074 1.074 ;
createNode transform -n "figure227" -p "|crowd|row8";
	rename -uid "F3E46C94-18BA-FF5F-7787-EF8D7B8E0234";
	setAttr ".t" -type "double3" 11.351 0 -0.816 ;
	setAttr ".r" -type "double3" 0 243.99 0 ;
	setAttr ".s" -type "double3" 1.076 1.076 1.076 ;
createNode transform -n "figure228" -p "|crowd|row8";
	rename -uid "BE58147B-E566-23BB-58D5-F0EFB8C31384";
	setAttr ".t" -type "double3" 11.666 0 -1.747 ;
	setAttr ".r" -type "double3" 0 257.6 0 ;
	setAttr ".s" -type "double3" 0.976 0.976 0.976 ;
createNode transform -n "figure229" -p "|crowd|row8";
	rename -uid "B5118582-F604-A438-69D5-869665518CC7";
	setAttr ".t" -type "double3" 12.114 0 -2.661 ;
	setAttr ".r" -type "double3" 0 250.14 0 ;
	setAttr ".s" -type "double3" 0.957 0.957 0.957 ;
createNode transform -n "figure230" -p "|crowd|row8";
	rename -uid "F0743A57-B07C-4572-4016-3F6FD639809D";
	setAttr ".t" -type "double3" 12.148 0 -3.663 ;
	setAttr ".r" -type "double3" 0 260.33 0 ;
	setAttr ".s" -type "double3" 1.006 1.006 1.006 ;
createNode transform -n "figure231" -p "|crowd|row8";
	rename -uid "75000C34-936C-2572-0481-081355AD9EE5";
	setAttr ".t" -type "double3" 12.18 0 -4.654 ;
	setAttr ".r" -type "double3" 0 279.16 0 ;
	setAttr ".s" -type "double3" 0.963 0.963 0.963 ;
createNode transform -n "figure232" -p "|crowd|row8";
	rename -uid "7C215514-2B2D-6AC9-B494-2B9283309BDE";
	setAttr ".t" -type "double3" 12.163 0 -5.642 ;
	setAttr ".r" -type "double3" 0 275.79 0 ;
	setAttr ".s" -type "double3" 0.942 0.942 0.942 ;
createNode transform -n "figure233" -p "|crowd|row8";
	rename -uid "3636A89C-898E-B9DE-7528-A02A1C7CCA56";
	setAttr ".t" -type "double3" 12.151 0 -6.637 ;
	setAttr ".r" -type "double3" 0 283.57 0 ;
	setAttr ".s" -type "double3" 1.079 1.079 1.079 ;
createNode transform -n "row9" -p "crowd";
	rename -uid "5478FDAE-6201-098B-F600-27CB3A356243";
createNode transform -n "figure234" -p "|crowd|row9";
	rename -uid "1B0920FB-79C6-1DA2-08B6-DC74121E64BB";
	setAttr ".t" -type "double3" -13.029 0 -6.801 ;
	setAttr ".r" -type "double3" 0 68.98 0 ;
	setAttr ".s" -type "double3" 1.064 1.064 1.064 ;
createNode transform -n "figure235" -p "|crowd|row9";
	rename -uid "17486748-9BC5-A73A-D0EF-BEA2BA97891A";
	setAttr ".t" -type "double3" -13.275 0 -5.839 ;
	setAttr ".r" -type "double3" 0 83.82 0 ;
	setAttr ".s" -type "double3" 0.981 0.981 0.981 ;
createNode transform -n "figure236" -p "|crowd|row9";
	rename -uid "3A61EEA5-432E-2C89-25C8-E543F8DC56B7";
	setAttr ".t" -type "double3" -13.405 0 -4.851 ;
	setAttr ".r" -type "double3" 0 93.02 0 ;
createNode transform -n "figure237" -p "|crowd|row9";
	rename -uid "27126982-E7D0-9E5E-ED9C-FACA298D8AA5";
	setAttr ".t" -type "double3" -13.294 0 -3.862 ;
	setAttr ".r" -type "double3" 0 81.39 0 ;
	setAttr ".s" -type "double3" 0.985 0.985 0.985 ;
createNode transform -n "figure238" -p "|crowd|row9";
	rename -uid "CE201934-00FC-8EC3-1A0F-4E8D7C9ED677";
	setAttr ".t" -type "double3" -13.053 0 -2.898 ;
	setAttr ".r" -type "double3" 0 112.11 0 ;
	setAttr ".s" -type "double3" 1.094 1.094 1.094 ;
createNode transform -n "figure239" -p "|crowd|row9";
	rename -uid "BA33454B-999B-EB73-B97B-BF671732A18F";
	setAttr ".t" -type "double3" -12.813 0 -1.947 ;
	setAttr ".r" -type "double3" 0 113.38 0 ;
	setAttr ".s" -type "double3" 0.916 0.916 0.916 ;
createNode transform -n "figure240" -p "|crowd|row9";
	rename -uid "CB2215DD-F95A-E212-7989-F14D7CC957CC";
	setAttr ".t" -type "double3" -12.597 0 -0.99 ;
	setAttr ".r" -type "double3" 0 105.9 0 ;
	setAttr ".s" -type "double3" 1.057 1.057 1.057 ;
createNode transform -n "figure241" -p "|crowd|row9";
	rename -uid "F71E7DA6-6E7B-4175-010F-D94D9A55E479";
	setAttr ".t" -type "double3" -12.346 0 -0.033 ;
	setAttr ".r" -type "double3" 0 102.87 0 ;
	setAttr ".s" -type "double3" 0.947 0.947 0.947 ;
createNode transform -n "figure242" -p "|crowd|row9";
	rename -uid "3FE2D31F-B61B-036E-89C9-8C6B5134E3B3";
	setAttr ".t" -type "double3" -11.861 0 0.828 ;
	setAttr ".r" -type "double3" 0 104.47 0 ;
	setAttr ".s" -type "double3" 0.955 0.955 0.955 ;
createNode transform -n "figure243" -p "|crowd|row9";
	rename -uid "C2F9F25A-7590-6C16-78FF-2EA2149F0E9A";
	setAttr ".t" -type "double3" -11.536 0 1.775 ;
	setAttr ".r" -type "double3" 0 118.64 0 ;
	setAttr ".s" -type "double3" 1.018 1.018 1.018 ;
createNode transform -n "figure244" -p "|crowd|row9";
	rename -uid "28BD3EAA-0D0B-FB96-181D-A4AF3B4C6E6E";
	setAttr ".t" -type "double3" -11.033 0 2.634 ;
	setAttr ".r" -type "double3" 0 124.9 0 ;
	setAttr ".s" -type "double3" 1.041 1.041 1.041 ;
createNode transform -n "figure245" -p "|crowd|row9";
	rename -uid "48939442-72D2-659B-6C56-F1FDD0E46BE7";
	setAttr ".t" -type "double3" -10.235 0 3.27 ;
	setAttr ".r" -type "double3" 0 125.63 0 ;
	setAttr ".s" -type "double3" 0.936 0.936 0.936 ;
createNode transform -n "figure246" -p "|crowd|row9";
	rename -uid "7E8A8AC8-EA00-127D-5C5A-AC8DE2D47563";
	setAttr ".t" -type "double3" -9.67 0 4.078 ;
	setAttr ".r" -type "double3" 0 139.25 0 ;
	setAttr ".s" -type "double3" 0.997 0.997 0.997 ;
createNode transform -n "figure247" -p "|crowd|row9";
	rename -uid "DC6AD32D-D246-4679-2044-0832A4EA5E1A";
	setAttr ".t" -type "double3" -9.012 0 4.817 ;
	setAttr ".r" -type "double3" 0 149.3 0 ;
createNode transform -n "figure248" -p "|crowd|row9";
	rename -uid "E57E1F9B-FCEA-F56E-2036-169CFBF21604";
	setAttr ".t" -type "double3" -8.189 0 5.37 ;
	setAttr ".r" -type "double3" 0 138.68 0 ;
	setAttr ".s" -type "double3" 0.954 0.954 0.954 ;
createNode transform -n "figure249" -p "|crowd|row9";
	rename -uid "074AB7F7-4A8E-F561-5303-101835A575CF";
	setAttr ".t" -type "double3" -7.448 0 6.024 ;
	setAttr ".r" -type "double3" 0 155.54 0 ;
	setAttr ".s" -type "double3" 1.019 1.019 1.019 ;
createNode transform -n "figure250" -p "|crowd|row9";
	rename -uid "6BDB7492-B089-E780-A59A-0FDF12FD2C67";
	setAttr ".t" -type "double3" -6.681 0 6.672 ;
	setAttr ".r" -type "double3" 0 144.79 0 ;
	setAttr ".s" -type "double3" 0.99 0.99 0.99 ;
createNode transform -n "figure251" -p "|crowd|row9";
	rename -uid "B67120C8-D4AA-C8EE-5D52-4C415BD652FC";
	setAttr ".t" -type "double3" -5.785 0 7.11 ;
	setAttr ".r" -type "double3" 0 159.75 0 ;
	setAttr ".s" -type "double3" 0.941 0.941 0.941 ;
createNode transform -n "figure252" -p "|crowd|row9";
	rename -uid "E79072D4-6754-8904-4284-FF8ABA820750";
	setAttr ".t" -type "double3" -4.814 0 7.361 ;
	setAttr ".r" -type "double3" 0 166.63 0 ;
	setAttr ".s" -type "double3" 0.923 0.923 0.923 ;
createNode transform -n "figure253" -p "|crowd|row9";
	rename -uid "BED12468-85D1-0FEB-128C-A5B8CED17673";
	setAttr ".t" -type "double3" -3.906 0 7.758 ;
	setAttr ".r" -type "double3" 0 161.26 0 ;
	setAttr ".s" -type "double3" 1.004 1.004 1.004 ;
createNode transform -n "figure254" -p "|crowd|row9";
	rename -uid "5644C3DB-E50D-E5F8-C75B-2CE6D95D3580";
	setAttr ".t" -type "double3" -2.929 0 7.928 ;
	setAttr ".r" -type "double3" 0 157.63 0 ;
	setAttr ".s" -type "double3" 1.084 1.084 1.084 ;
createNode transform -n "figure255" -p "|crowd|row9";
	rename -uid "372ED668-BD15-9CC7-B992-13DF48381CC5";
	setAttr ".t" -type "double3" -1.946 0 8.008 ;
	setAttr ".r" -type "double3" 0 174.03 0 ;
	setAttr ".s" -type "double3" 0.904 0.904 0.904 ;
createNode transform -n "figure256" -p "|crowd|row9";
	rename -uid "D861DABA-EA58-67CC-8075-FF7E443EE3A5";
	setAttr ".t" -type "double3" -0.977 0 8.135 ;
	setAttr ".r" -type "double3" 0 175.18 0 ;
	setAttr ".s" -type "double3" 1.084 1.084 1.084 ;
createNode transform -n "figure257" -p "|crowd|row9";
	rename -uid "72C7B7CC-68C0-15EA-32C7-21BB2E64AED5";
	setAttr ".t" -type "double3" 0 0 8.238 ;
	setAttr ".r" -type "double3" 0 167.69 0 ;
	setAttr ".s" -type "double3" 0.991 0.991 0.991 ;
createNode transform -n "figure258" -p "|crowd|row9";
	rename -uid "2AD44BF3-D960-ED83-EBDA-14BEE2572B1B";
	setAttr ".t" -type "double3" 0.98 0 8.175 ;
	setAttr ".r" -type "double3" 0 190.03 0 ;
	setAttr ".s" -type "double3" 0.936 0.936 0.936 ;
createNode transform -n "figure259" -p "|crowd|row9";
	rename -uid "DC3B38F3-028A-BF3A-311F-A1C7E822781E";
	setAttr ".t" -type "double3" 1.974 0 8.188 ;
	setAttr ".r" -type "double3" 0 187.77 0 ;
	setAttr ".s" -type "double3" 1.091 1.091 1.091 ;
createNode transform -n "figure260" -p "|crowd|row9";
	rename -uid "F95579D6-F057-84F4-EED0-827447485B19";
	setAttr ".t" -type "double3" 2.964 0 8.08 ;
	setAttr ".r" -type "double3" 0 185.77 0 ;
	setAttr ".s" -type "double3" 1.047 1.047 1.047 ;
createNode transform -n "figure261" -p "|crowd|row9";
	rename -uid "B45592A1-34F1-79CB-4C0A-84DCB3F28272";
	setAttr ".t" -type "double3" 3.912 0 7.779 ;
	setAttr ".r" -type "double3" 0 200.52 0 ;
	setAttr ".s" -type "double3" 1.094 1.094 1.094 ;
createNode transform -n "figure262" -p "|crowd|row9";
	rename -uid "37E9AD61-A187-CD69-4DF9-83F89AF6A343";
	setAttr ".t" -type "double3" 4.878 0 7.527 ;
	setAttr ".r" -type "double3" 0 198.6 0 ;
	setAttr ".s" -type "double3" 1.065 1.065 1.065 ;
createNode transform -n "figure263" -p "|crowd|row9";
	rename -uid "F0F58E77-6F36-8612-425D-F3EB18EC26BE";
	setAttr ".t" -type "double3" 5.732 0 7.001 ;
	setAttr ".r" -type "double3" 0 203.88 0 ;
	setAttr ".s" -type "double3" 1.001 1.001 1.001 ;
createNode transform -n "figure264" -p "|crowd|row9";
	rename -uid "0061B462-7B7D-C2E3-C8B0-263C1A446ED4";
	setAttr ".t" -type "double3" 6.65 0 6.617 ;
	setAttr ".r" -type "double3" 0 213.83 0 ;
	setAttr ".s" -type "double3" 1.069 1.069 1.069 ;
createNode transform -n "figure265" -p "|crowd|row9";
	rename -uid "0625B0FB-45BB-67DE-54CD-4CC966C1AA3A";
	setAttr ".t" -type "double3" 7.396 0 5.947 ;
	setAttr ".r" -type "double3" 0 205.02 0 ;
	setAttr ".s" -type "double3" 0.909 0.909 0.909 ;
createNode transform -n "figure266" -p "|crowd|row9";
	rename -uid "EF34B897-DF89-E5B4-BCD3-B93CF7B66F24";
	setAttr ".t" -type "double3" 8.243 0 5.438 ;
	setAttr ".r" -type "double3" 0 217.39 0 ;
	setAttr ".s" -type "double3" 0.955 0.955 0.955 ;
createNode transform -n "figure267" -p "|crowd|row9";
	rename -uid "75B49EAF-54CB-CEDD-9C7A-13F69DB7FB63";
	setAttr ".t" -type "double3" 9.017 0 4.821 ;
	setAttr ".r" -type "double3" 0 223.63 0 ;
	setAttr ".s" -type "double3" 1.061 1.061 1.061 ;
createNode transform -n "figure268" -p "|crowd|row9";
	rename -uid "91183B4C-9DB3-9D76-2FFF-EEEBA077A0F2";
	setAttr ".t" -type "double3" 9.742 0 4.146 ;
	setAttr ".r" -type "double3" 0 226.85 0 ;
	setAttr ".s" -type "double3" 1.05 1.05 1.05 ;
createNode transform -n "figure269" -p "|crowd|row9";
	rename -uid "29ECC819-EC16-CCFE-054B-D80A0A97477F";
	setAttr ".t" -type "double3" 10.387 0 3.392 ;
	setAttr ".r" -type "double3" 0 244.13 0 ;
	setAttr ".s" -type "double3" 0.938 0.938 0.938 ;
createNode transform -n "figure270" -p "|crowd|row9";
	rename -uid "108914FA-2918-2BF1-7F2B-7DFEBE5EEBCA";
	setAttr ".t" -type "double3" 11.002 0 2.613 ;
	setAttr ".r" -type "double3" 0 236.97 0 ;
	setAttr ".s" -type "double3" 1.004 1.004 1.004 ;
createNode transform -n "figure271" -p "|crowd|row9";
	rename -uid "AB5DA973-CCB6-4E82-9D78-D158CDB91767";
	setAttr ".t" -type "double3" 11.351 0 1.667 ;
	setAttr ".r" -type "double3" 0 231.52 0 ;
	setAttr ".s" -type "double3" 1.089 1.089 1.089 ;
createNode transform -n "figure272" -p "|crowd|row9";
	rename -uid "2F28C029-0E58-8170-B8FB-702593BE1560";
	setAttr ".t" -type "double3" 11.944 0 0.869 ;
	setAttr ".r" -type "double3" 0 248.25 0 ;
	setAttr ".s" -type "double3" 1.024 1.024 1.024 ;
createNode transform -n "figure273" -p "|crowd|row9";
	rename -uid "9F7F043A-BAB1-EAC6-BBC0-CAC039F2DE2F";
	setAttr ".t" -type "double3" 12.254 0 -0.07 ;
	setAttr ".r" -type "double3" 0 236.01 0 ;
	setAttr ".s" -type "double3" 1.049 1.049 1.049 ;
createNode transform -n "figure274" -p "|crowd|row9";
	rename -uid "F4A96647-B1EA-DE0F-6206-8E0DE3A16FC4";
	setAttr ".t" -type "double3" 12.67 0 -0.966 ;
	setAttr ".r" -type "double3" 0 251.26 0 ;
	setAttr ".s" -type "double3" 0.984 0.984 0.984 ;
createNode transform -n "figure275" -p "|crowd|row9";
	rename -uid "EDF96418-F1E5-86F5-B4DD-F5490D7C7DA8";
	setAttr ".t" -type "double3" 12.837 0 -1.941 ;
	setAttr ".r" -type "double3" 0 248.13 0 ;
	setAttr ".s" -type "double3" 1.085 1.085 1.085 ;
createNode transform -n "figure276" -p "|crowd|row9";
	rename -uid "9F58BE6B-4EBB-F3C0-90B0-5FE04926F83B";
	setAttr ".t" -type "double3" 13.189 0 -2.876 ;
	setAttr ".r" -type "double3" 0 270.06 0 ;
	setAttr ".s" -type "double3" 0.958 0.958 0.958 ;
createNode transform -n "figure277" -p "|crowd|row9";
	rename -uid "0AE2B527-51EB-2E3F-4AE5-CA67957C5B68";
	setAttr ".t" -type "double3" 13.111 0 -3.877 ;
	setAttr ".r" -type "double3" 0 276.78 0 ;
	setAttr ".s" -type "double3" 1.052 1.052 1.052 ;
createNode transform -n "figure278" -p "|crowd|row9";
	rename -uid "72DFA4C1-B0D7-611C-AA6A-F0EE7873ABA0";
	setAttr ".t" -type "double3" 13.44 0 -4.85 ;
	setAttr ".r" -type "double3" 0 278.65 0 ;
	setAttr ".s" -type "double3" 1.098 1.098 1.098 ;
createNode transform -n "figure279" -p "|crowd|row9";
	rename -uid "89D8A446-64EF-F087-36C4-ED5FF8072F92";
	setAttr ".t" -type "double3" 13.279 0 -5.839 ;
	setAttr ".r" -type "double3" 0 261.13 0 ;
	setAttr ".s" -type "double3" 1.018 1.018 1.018 ;
createNode transform -n "figure280" -p "|crowd|row9";
	rename -uid "9E7E18CE-5C0E-B6B1-AD9F-B341DAE9787B";
	setAttr ".t" -type "double3" 13.271 0 -6.835 ;
	setAttr ".r" -type "double3" 0 279.38 0 ;
	setAttr ".s" -type "double3" 0.93 0.93 0.93 ;
createNode transform -n "stewardsLeft" -p "crowd";
	rename -uid "8BABB60B-E74C-0D49-A849-A7028AE12690";
	setAttr ".t" -type "double3" -4 0 -9 ;
	setAttr ".r" -type "double3" 0 155 0 ;
createNode transform -n "troop" -p "|crowd|stewardsLeft";
	rename -uid "D1CE3BF1-AC92-1104-CA93-520B112D2EF3";
createNode transform -n "steward1" -p "|crowd|stewardsLeft|troop";
	rename -uid "FB2822CD-F3DF-A74E-DB62-6DD50107C526";
	setAttr ".s" -type "double3" 1.05 1.05 1.05 ;
createNode transform -n "steward2" -p "|crowd|stewardsLeft|troop";
	rename -uid "7A379690-D791-1B15-511B-7B361AC401A6";
	setAttr ".t" -type "double3" 0.9 0 0 ;
	setAttr ".s" -type "double3" 1.05 1.05 1.05 ;
createNode transform -n "steward3" -p "|crowd|stewardsLeft|troop";
	rename -uid "D77F90A7-2B5A-F587-AC5F-838C03830EA7";
	setAttr ".t" -type "double3" 0 0 1.1 ;
	setAttr ".s" -type "double3" 1.05 1.05 1.05 ;
createNode transform -n "steward4" -p "|crowd|stewardsLeft|troop";
	rename -uid "233C2853-98E4-61DC-2716-48EBBBD52C3E";
	setAttr ".t" -type "double3" 0.9 0 1.1 ;
	setAttr ".s" -type "double3" 1.05 1.05 1.05 ;
createNode transform -n "steward5" -p "|crowd|stewardsLeft|troop";
	rename -uid "8177402C-C611-29E7-1C58-920349FB7EA3";
	setAttr ".t" -type "double3" 0 0 2.2 ;
	setAttr ".s" -type "double3" 1.05 1.05 1.05 ;
createNode transform -n "steward6" -p "|crowd|stewardsLeft|troop";
	rename -uid "FB293800-D396-23CD-3A03-8CFA7BAF609B";
	setAttr ".t" -type "double3" 0.9 0 2.2 ;
	setAttr ".s" -type "double3" 1.05 1.05 1.05 ;
createNode transform -n "stewardsRight" -p "crowd";
	rename -uid "97838B7F-1ED9-E69D-96DD-D974596BACAB";
	setAttr ".t" -type "double3" 3 0 -9 ;
	setAttr ".r" -type "double3" 0 205 0 ;
createNode transform -n "proxies";
	rename -uid "DE3A9E5B-0B9D-3D47-4EF1-5B4452E398F0";
createNode transform -n "proxyStage" -p "proxies";
	rename -uid "1B795119-243A-AA85-3486-EBA3C730C1DA";
	setAttr ".t" -type "double3" 0 1.8 -5 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape" -p "proxyStage";
	rename -uid "EA4ED17A-A856-E058-49EF-0A1739D3160F";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "band";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/band";
	setAttr ".pyc" -type "string" "crowd.onTranslate";
createNode transform -n "proxyGate" -p "proxies";
	rename -uid "29BCF573-405D-8952-2AED-C9BEE04BD8AF";
	setAttr ".t" -type "double3" 3 1 10 ;
	setAttr ".r" -type "double3" 0 10 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape1" -p "proxyGate";
	rename -uid "D539DFB5-679C-87D1-2F46-50319C3655AA";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "gate";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/gate";
createNode transform -n "proxyWest" -p "proxies";
	rename -uid "77D840E2-ADA9-96CF-D6DC-B1F250B1FDD2";
	setAttr ".t" -type "double3" -15 1 -1 ;
	setAttr ".r" -type "double3" 0 40 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape2" -p "proxyWest";
	rename -uid "7FA302A6-8AF7-EEF6-4EC8-2FFAB50F5195";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "street_west";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/street_west";
	setAttr ".pyc" -type "string" "crowd.onTranslate";
createNode transform -n "proxyEast" -p "proxies";
	rename -uid "C1D6357F-6B78-1B70-40A0-EE7634BB6159";
	setAttr ".t" -type "double3" 15 1 -3 ;
	setAttr ".r" -type "double3" 0 -40 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape3" -p "proxyEast";
	rename -uid "2CE072CC-8CD2-E386-596C-013B282E75BE";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "street_east";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/street_east";
createNode transform -n "proxyBackLeft" -p "proxies";
	rename -uid "94CA43FB-E72E-4E3B-F99D-9851081425EA";
	setAttr ".t" -type "double3" -6 1 -11 ;
	setAttr ".r" -type "double3" 0 10 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape4" -p "proxyBackLeft";
	rename -uid "41D24D2D-ADCA-778F-00BF-B80E743CCF3E";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "backstage_left";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/backstage_left";
	setAttr ".pyc" -type "string" "crowd.onTranslate";
createNode transform -n "proxyBackRight" -p "proxies";
	rename -uid "A50A32B4-A330-F568-9A7B-F519D1D0B745";
	setAttr ".t" -type "double3" 6 1 -11 ;
	setAttr ".r" -type "double3" 0 -10 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape5" -p "proxyBackRight";
	rename -uid "C45359F6-80D9-7A44-725D-561C4C8E525D";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "backstage_right";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/backstage_right";
createNode transform -n "proxyLeft" -p "proxies";
	rename -uid "A70E26FC-9CE1-1C19-5555-489C502C2EDC";
	setAttr ".t" -type "double3" -9.5 1 7.5 ;
	setAttr ".r" -type "double3" 0 20 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape6" -p "proxyLeft";
	rename -uid "5C16FC82-8D6C-9B91-0EEA-7B1CC95B9885";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "plaza_left";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/plaza_left";
	setAttr ".pyc" -type "string" "crowd.onTranslate";
createNode transform -n "proxyRight" -p "proxies";
	rename -uid "F63138DB-9206-81B0-565D-C2E0E27B5379";
	setAttr ".t" -type "double3" 10.5 1 4.5 ;
	setAttr ".r" -type "double3" 0 -15 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape7" -p "proxyRight";
	rename -uid "F317493A-C00A-7D23-2576-A6A496E4E1E3";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "plaza_right";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/plaza_right";
createNode transform -n "ribLeft" -p "proxies";
	rename -uid "A28EB633-85B1-D933-B944-8EC44B98ADFE";
	setAttr ".t" -type "double3" -1.4 0 11.6 ;
	setAttr ".r" -type "double3" 90 20 0 ;
	setAttr ".s" -type "double3" 1.4 1.4 1.4 ;
createNode CrowdProxyRendermanStudio -n "crowdProxyRMSShape" -p "ribLeft";
	rename -uid "2DB415DB-0CD8-B08A-5706-5BE002C02650";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "plaza_left";
	setAttr ".cfr" 101;
	setAttr ".fr" 24;
	setAttr ".rfd" -type "string" "/shots/plaza/rib/plaza_left";
createNode transform -n "ribFar" -p "proxies";
	rename -uid "9177AA5E-E0E2-BA73-A953-BBA08C9D6C22";
	setAttr ".t" -type "double3" -7.5 0 -12.5 ;
	setAttr ".r" -type "double3" 90 20 0 ;
	setAttr ".s" -type "double3" 1.4 1.4 1.4 ;
createNode CrowdProxyRendermanStudio -n "crowdProxyRMSShape1" -p "ribFar";
	rename -uid "C6D4A3F9-B3A1-CDB2-BB95-B1162E4D4B1F";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "backstage_left";
	setAttr ".cfr" 113;
	setAttr ".fr" 24;
	setAttr ".rfd" -type "string" "/shots/plaza/rib/backstage_left";
createNode transform -n "ribBack" -p "proxies";
	rename -uid "0DE7E387-C7CE-EEEA-3C17-9A0F90BD05E8";
	setAttr ".t" -type "double3" 12 0 -8 ;
	setAttr ".r" -type "double3" 90 25 0 ;
	setAttr ".s" -type "double3" 1.4 1.4 1.4 ;
createNode CrowdProxyRendermanStudio -n "crowdProxyRMSShape2" -p "ribBack";
	rename -uid "592252BB-85B8-DB1F-B71A-AC6653725E40";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "backstage_right";
	setAttr ".cfr" 125;
	setAttr ".fr" 24;
	setAttr ".rfd" -type "string" "/shots/plaza/rib/backstage_right";
createNode transform -n "crowdRenderManager";
	rename -uid "60DF27B2-9419-0CFA-6A96-2C644679B0A7";
createNode CrowdRenderManagerNode -n "crowdRenderManagerNodeShape" -p "crowdRenderManager";
	rename -uid "C2DE7D17-86C8-56D8-306D-5566E1FB67B1";
	setAttr -k off ".v";
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure4" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure5" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure6" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure8" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure9" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure10" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure11" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure12" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure13" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure14" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure15" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure16" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure17" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure18" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure19" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure20" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure21" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure22" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure23" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure24" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure25" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure26" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure27" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure28" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure29" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure30" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure31" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure32" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure33" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure34" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure35" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure36" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure37" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure38" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure39" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure40" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure41" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure42" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure43" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure44" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure45" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure46" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure47" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure48" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure49" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure50" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure51" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure52" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure53" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure54" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure55" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure56" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure57" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure58" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure59" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure60" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure61" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure62" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure63" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure64" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure65" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure66" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure67" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure68" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure69" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure70" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure71" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure72" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure73" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure74" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure75" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure76" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure77" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure78" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure79" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure80" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure81" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure82" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure83" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure84" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure85" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure86" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure87" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure88" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure89" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure90" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure91" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure92" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure93" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure94" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure95" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure96" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure97" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure98" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure99" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure100" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure101" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure102" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure103" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure104" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure105" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure106" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure107" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure108" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure109" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure110" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure111" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure112" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure113" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure114" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure115" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure116" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure117" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure118" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure119" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure120" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure121" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure122" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure123" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure124" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure125" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure126" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure127" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure128" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure129" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure130" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure131" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure132" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure133" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure134" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure135" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure136" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure137" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure138" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure139" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure140" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure141" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure142" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure143" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure144" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure145" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure146" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure147" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure148" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure149" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure150" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure151" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure152" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure153" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure154" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure155" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure156" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure157" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure158" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure159" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure160" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure161" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure162" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure163" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure164" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure165" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure166" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure167" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure168" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure169" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure170" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure171" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure172" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure173" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure174" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure175" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure176" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure177" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure178" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure179" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure180" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure181" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure182" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure183" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure184" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure185" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure186" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure187" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure188" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure189" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure190" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure191" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure192" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure193" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure194" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure195" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure196" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure197" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure198" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure199" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure200" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure201" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure202" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure203" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure204" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure205" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure206" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure207" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure208" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure209" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure210" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure211" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure212" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure213" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure214" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure215" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure216" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure217" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure218" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure219" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure220" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure221" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure222" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure223" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure224" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure225" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure226" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure227" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure228" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure229" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure230" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure231" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure232" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure233" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure234" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure235" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure236" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure237" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure238" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure239" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure240" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure241" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure242" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure243" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure244" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure245" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure246" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure247" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure248" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure249" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure250" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure251" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure252" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure253" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure254" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure255" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure256" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure257" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure258" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure259" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure260" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure261" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure262" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure263" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure264" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure265" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure266" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure267" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure268" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure269" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure270" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure271" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure272" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure273" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure274" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure275" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure276" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure277" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure278" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure279" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure280" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "steward1" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "steward2" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "steward3" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "steward4" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "steward5" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "steward6" ;
parent -s -nc -r -add "|crowd|stewardsLeft|troop" "stewardsRight" ;
createNode lightLinker -s -n "lightLinker1";
	rename -uid "F52395EF-350B-0785-5389-AE18FFAAC18A";
	setAttr -s 7 ".lnk";
	setAttr -s 7 ".slnk";
createNode displayLayerManager -n "layerManager";
	rename -uid "158668A5-CCDF-3C52-60ED-D62355B25ACF";
createNode displayLayer -n "defaultLayer";
	rename -uid "6CB65054-EF79-9162-887E-513488EC292C";
createNode renderLayerManager -n "renderLayerManager";
	rename -uid "C19B02EC-2E46-D894-AA5A-638E3A54AAFC";
createNode renderLayer -n "defaultRenderLayer";
	rename -uid "8D011A50-2C37-AA78-D32E-2DD23B6E2B66";
	setAttr ".g" yes;
createNode script -n "sceneConfigurationScriptNode";
	rename -uid "76984C27-6453-275D-4E35-62750B5A207B";
	setAttr ".b" -type "string" "playbackOptions -min 1 -max 120 -ast 1 -aet 200 ";
	setAttr ".st" 6;
createNode CrowdGetUserDataVRay -n "clothesIndex";
	rename -uid "4C20663F-AEA0-E220-A1B1-919F5E1580C3";
createNode CrowdGetUserDataVRay -n "objectNumber";
	rename -uid "5722783A-805A-37C1-D4F6-98A8D4242CEE";
	setAttr ".pt" 1;
	setAttr ".df" 2;
createNode CrowdSwitchShaderVRay -n "standerSwitch";
	rename -uid "68A5E8EC-1ABF-F458-77D5-34D3118BFA10";
	setAttr ".sh0" -type "float3" 0.55 0.14 0.12 ;
	setAttr ".sh1" -type "float3" 0.1 0.25 0.6 ;
	setAttr ".sh2" -type "float3" 0.12 0.45 0.2 ;
createNode lambert -n "standerMat";
	rename -uid "056E74B5-286B-511A-E5C2-6B5BEF85BB6E";
createNode shadingEngine -n "standerSG";
	rename -uid "7B456676-AFA3-9570-CD72-E4FB2A393516";
	setAttr ".ihi" 0;
	setAttr -s 138 ".dsm";
	setAttr ".ro" yes;
createNode materialInfo -n "standerInfo";
	rename -uid "46DADFA9-7BA6-70CA-2703-4BC762D5E8A1";
createNode CrowdSwitchShaderVRay -n "walkerSwitch";
	rename -uid "F37FF65F-8FCB-18C8-508E-6443B118A592";
	setAttr ".sel" 1;
	setAttr ".sh1" -type "float3" 0.8 0.7 0.1 ;
	setAttr ".sh2" -type "float3" 0.2 0.2 0.22 ;
createNode file -n "walkerTexture";
	rename -uid "F8F798B7-8DFD-C92A-65F5-F91B9748036E";
	setAttr ".ftn" -type "string" "sourceimages/uniform.png";
createNode place2dTexture -n "walkerTexturePlace";
	rename -uid "97E0119E-7824-C20E-85BF-4DBC21841633";
createNode lambert -n "walkerMat";
	rename -uid "D5DABD81-9FC5-6351-9119-302E3CB61B91";
createNode shadingEngine -n "walkerSG";
	rename -uid "BE028B74-E463-72F3-01C5-7847CB707FD5";
	setAttr ".ihi" 0;
	setAttr -s 41 ".dsm";
	setAttr ".ro" yes;
createNode materialInfo -n "walkerInfo";
	rename -uid "D7DD8C44-2059-3825-980F-9F7333C0C868";
createNode CrowdHSLShaderVRay -n "walkerShift";
	rename -uid "401548A1-6DE3-B588-35BE-E36D3CD49CFA";
	setAttr ".h" 0.08;
	setAttr ".s" -0.25;
createNode CrowdSwitchShaderVRay -n "waverSwitch";
	rename -uid "25DD0F06-D019-866F-A9A5-4F39BBF936C8";
	setAttr ".sel" 2;
	setAttr ".sh0" -type "float3" 0.1 0.25 0.6 ;
	setAttr ".sh3" -type "float3" 0.7 0.3 0.5 ;
createNode lambert -n "waverMat";
	rename -uid "F534E6D0-3822-F1A8-695F-09B46205D65C";
createNode shadingEngine -n "waverSG";
	rename -uid "5B1D9AC4-311A-D6A4-E2AF-8B7893111DEF";
	setAttr ".ihi" 0;
	setAttr -s 67 ".dsm";
	setAttr ".ro" yes;
createNode materialInfo -n "waverInfo";
	rename -uid "15B648E9-5A58-1C0C-7910-56C886A4FF6C";
createNode CrowdSwitchShaderVRay -n "cheererSwitch";
	rename -uid "61546E9C-E841-136B-EED7-2399D6C247FA";
	setAttr ".sto" 12;
	setAttr ".sh1" -type "float3" 0.9 0.9 0.85 ;
createNode file -n "cheererTexture";
	rename -uid "DADC8A34-C8F6-4509-7595-B971BB34D435";
	setAttr ".ftn" -type "string" "sourceimages/scarf.png";
createNode place2dTexture -n "cheererTexturePlace";
	rename -uid "C923408D-33AE-F323-20B4-1A4DADC6AAD7";
createNode lambert -n "cheererMat";
	rename -uid "93C50C8C-2FB0-1793-9C6C-A0BC12FE9ADB";
createNode shadingEngine -n "cheererSG";
	rename -uid "8EC401D3-47A4-92B9-59DF-E83B4C7337A8";
	setAttr ".ihi" 0;
	setAttr -s 46 ".dsm";
	setAttr ".ro" yes;
createNode materialInfo -n "cheererInfo";
	rename -uid "73B545C5-A3F8-4727-B2A8-8FC29033C65F";
createNode CrowdHSLShaderVRay -n "cheererShift";
	rename -uid "C95D2DE8-13D0-B289-6FDB-AAE150CEFFD0";
	setAttr ".s" 0.1;
	setAttr ".l" -0.2;
createNode lambert -n "stageMat";
	rename -uid "78777353-3FCB-8942-878F-C3521B092AA8";
	setAttr ".c" -type "float3" 0.35 0.3 0.26 ;
createNode shadingEngine -n "stageSG";
	rename -uid "9348962F-2983-D6F5-0C81-9DDFC6F282F5";
	setAttr ".ihi" 0;
	setAttr ".ro" yes;
createNode materialInfo -n "stageInfo";
	rename -uid "FCD237AE-A83E-5B1C-1952-59CBCAA7B1C9";
createNode CrowdGetUserData3Delight -n "clothesIndex3Delight";
	rename -uid "720F1AA2-BA7C-7DD4-AA77-15E82342404F";
	setAttr ".sp" -type "string" "float fallback = 0;";
	setAttr ".sc" -type "string" "float clothes = fallback;\nattribute(\"user:clothes\", clothes);";
createNode CrowdSwitchShader3Delight -n "clothes3Delight";
	rename -uid "E69C8078-A3B0-29E8-D75A-1A2AB0EB92C9";
	setAttr ".sp" -type "string" "color shader0 = color(0.55, 0.14, 0.12);\ncolor shader1 = color(0.1, 0.25, 0.6);";
	setAttr ".sc" -type "string" "outColor = clothes < 1 ? shader0 : shader1;";
select -ne :time1;
	setAttr ".o" 1;
	setAttr ".unw" 1;
select -ne :renderPartition;
	setAttr -s 7 ".st";
select -ne :renderGlobalsList1;
select -ne :defaultShaderList1;
	setAttr -s 9 ".s";
select -ne :postProcessList1;
	setAttr -s 2 ".p";
select -ne :defaultRenderUtilityList1;
	setAttr -s 12 ".u";
select -ne :defaultRenderingList1;
select -ne :defaultTextureList1;
	setAttr -s 2 ".tx";
select -ne :initialShadingGroup;
	setAttr ".ro" yes;
select -ne :initialParticleSE;
	setAttr ".ro" yes;
select -ne :defaultResolution;
	setAttr ".pa" 1;
relationship "link" ":lightLinker1" ":initialShadingGroup.message" ":defaultLightSet.message";
relationship "link" ":lightLinker1" ":initialParticleSE.message" ":defaultLightSet.message";
relationship "link" ":lightLinker1" "standerSG.message" ":defaultLightSet.message";
relationship "link" ":lightLinker1" "walkerSG.message" ":defaultLightSet.message";
relationship "link" ":lightLinker1" "waverSG.message" ":defaultLightSet.message";
relationship "link" ":lightLinker1" "cheererSG.message" ":defaultLightSet.message";
relationship "link" ":lightLinker1" "stageSG.message" ":defaultLightSet.message";
relationship "shadowLink" ":lightLinker1" ":initialShadingGroup.message" ":defaultLightSet.message";
relationship "shadowLink" ":lightLinker1" ":initialParticleSE.message" ":defaultLightSet.message";
relationship "shadowLink" ":lightLinker1" "standerSG.message" ":defaultLightSet.message";
relationship "shadowLink" ":lightLinker1" "walkerSG.message" ":defaultLightSet.message";
relationship "shadowLink" ":lightLinker1" "waverSG.message" ":defaultLightSet.message";
relationship "shadowLink" ":lightLinker1" "cheererSG.message" ":defaultLightSet.message";
relationship "shadowLink" ":lightLinker1" "stageSG.message" ":defaultLightSet.message";
connectAttr "layerManager.dli[0]" "defaultLayer.id";
connectAttr "renderLayerManager.rlmi[0]" "defaultRenderLayer.rlid";
connectAttr "standerMat.oc" "standerSG.ss";
connectAttr "|crowd|row1|figure2|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row1|figure4|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row1|figure8|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row1|figure14|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row1|figure16|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row2|figure17|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row2|figure19|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row2|figure21|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row2|figure23|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row2|figure25|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row2|figure27|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row2|figure29|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row2|figure30|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row2|figure31|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row2|figure34|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row2|figure35|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure38|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure40|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure42|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure43|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure45|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure46|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure47|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure51|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure52|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure53|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure55|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure57|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure59|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure60|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure63|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure64|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure66|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure68|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure71|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure73|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure74|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure75|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure78|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure79|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure81|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure83|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure84|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure86|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure88|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure89|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure93|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure94|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure95|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure96|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure97|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure98|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure100|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure104|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure105|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure107|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure111|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure113|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure115|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure118|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure121|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure122|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure123|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure124|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure130|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure132|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure133|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure134|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure136|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure137|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure138|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure139|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure140|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure141|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure142|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure145|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure149|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure150|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure153|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure154|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure155|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure156|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure157|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure160|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure161|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure163|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure165|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure166|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure169|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure170|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure171|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure178|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure181|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure188|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure190|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure192|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure193|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure194|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure199|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure202|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure203|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure206|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure208|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure213|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure214|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure221|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure222|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure223|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure224|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure225|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure229|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure231|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure235|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure236|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure239|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure240|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure242|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure243|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure245|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure246|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure249|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure250|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure251|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure252|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure253|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure254|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure258|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure261|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure262|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure266|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure267|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure269|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure270|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure274|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure275|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure276|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure277|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure279|standerShape.iog" "standerSG.dsm" -na;
connectAttr "standerSG.msg" "standerInfo.sg";
connectAttr "standerMat.msg" "standerInfo.m";
connectAttr "standerSwitch.op" "standerMat.c";
connectAttr "clothesIndex.op" "standerSwitch.sel";
connectAttr "walkerTexturePlace.c" "walkerTexture.c";
connectAttr "walkerTexturePlace.tf" "walkerTexture.tf";
connectAttr "walkerTexturePlace.rf" "walkerTexture.rf";
connectAttr "walkerTexturePlace.mu" "walkerTexture.mu";
connectAttr "walkerTexturePlace.mv" "walkerTexture.mv";
connectAttr "walkerTexturePlace.s" "walkerTexture.s";
connectAttr "walkerTexturePlace.wu" "walkerTexture.wu";
connectAttr "walkerTexturePlace.wv" "walkerTexture.wv";
connectAttr "walkerTexturePlace.re" "walkerTexture.re";
connectAttr "walkerTexturePlace.of" "walkerTexture.of";
connectAttr "walkerTexturePlace.r" "walkerTexture.r";
connectAttr "walkerTexturePlace.n" "walkerTexture.n";
connectAttr "walkerTexturePlace.vt1" "walkerTexture.vt1";
connectAttr "walkerTexturePlace.vt2" "walkerTexture.vt2";
connectAttr "walkerTexturePlace.vt3" "walkerTexture.vt3";
connectAttr "walkerTexturePlace.vc1" "walkerTexture.vc1";
connectAttr "walkerTexturePlace.o" "walkerTexture.uv";
connectAttr "walkerTexturePlace.ofs" "walkerTexture.fs";
connectAttr "walkerTexture.oc" "walkerSwitch.sh0";
connectAttr "walkerMat.oc" "walkerSG.ss";
connectAttr "|crowd|row1|figure7|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row1|figure10|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row1|figure15|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row2|figure18|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row3|figure37|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row4|figure77|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row5|figure108|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row5|figure110|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row5|figure116|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row6|figure128|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row6|figure131|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row6|figure146|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row6|figure151|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row7|figure162|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row7|figure174|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row7|figure180|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row7|figure185|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row8|figure197|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row8|figure200|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row8|figure205|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row8|figure211|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row8|figure212|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure234|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure237|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure244|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure255|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure256|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure271|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure272|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsLeft|troop|steward1|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsLeft|troop|steward2|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsLeft|troop|steward3|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsLeft|troop|steward4|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsLeft|troop|steward5|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsLeft|troop|steward6|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsRight|troop|steward1|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsRight|troop|steward2|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsRight|troop|steward3|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsRight|troop|steward4|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsRight|troop|steward5|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|stewardsRight|troop|steward6|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "walkerSG.msg" "walkerInfo.sg";
connectAttr "walkerMat.msg" "walkerInfo.m";
connectAttr "walkerSwitch.op" "walkerShift.in";
connectAttr "walkerShift.op" "walkerMat.c";
connectAttr "waverMat.oc" "waverSG.ss";
connectAttr "|crowd|row1|figure1|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row1|figure6|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row1|figure9|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row2|figure22|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row2|figure24|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row2|figure28|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row2|figure32|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row3|figure36|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row3|figure39|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row3|figure44|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row3|figure48|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row3|figure49|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row3|figure50|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row3|figure54|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row3|figure56|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row4|figure65|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row4|figure67|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row4|figure69|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row4|figure70|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row4|figure72|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row4|figure76|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row4|figure80|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure87|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure91|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure99|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure101|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure102|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure106|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row6|figure117|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row6|figure119|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row6|figure120|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row6|figure125|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row6|figure126|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row6|figure135|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row6|figure147|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row6|figure148|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row7|figure159|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row7|figure164|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row7|figure167|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row7|figure172|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row7|figure173|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row7|figure177|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row7|figure184|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row7|figure186|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row7|figure189|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure191|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure195|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure196|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure198|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure201|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure204|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure207|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure209|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure210|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure217|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure218|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure219|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure230|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row8|figure232|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row9|figure241|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row9|figure247|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row9|figure248|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row9|figure257|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row9|figure259|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row9|figure268|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row9|figure278|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row9|figure280|waverShape.iog" "waverSG.dsm" -na;
connectAttr "waverSG.msg" "waverInfo.sg";
connectAttr "waverMat.msg" "waverInfo.m";
connectAttr "waverSwitch.op" "waverMat.c";
connectAttr "cheererTexturePlace.c" "cheererTexture.c";
connectAttr "cheererTexturePlace.tf" "cheererTexture.tf";
connectAttr "cheererTexturePlace.rf" "cheererTexture.rf";
connectAttr "cheererTexturePlace.mu" "cheererTexture.mu";
connectAttr "cheererTexturePlace.mv" "cheererTexture.mv";
connectAttr "cheererTexturePlace.s" "cheererTexture.s";
connectAttr "cheererTexturePlace.wu" "cheererTexture.wu";
connectAttr "cheererTexturePlace.wv" "cheererTexture.wv";
connectAttr "cheererTexturePlace.re" "cheererTexture.re";
connectAttr "cheererTexturePlace.of" "cheererTexture.of";
connectAttr "cheererTexturePlace.r" "cheererTexture.r";
connectAttr "cheererTexturePlace.n" "cheererTexture.n";
connectAttr "cheererTexturePlace.vt1" "cheererTexture.vt1";
connectAttr "cheererTexturePlace.vt2" "cheererTexture.vt2";
connectAttr "cheererTexturePlace.vt3" "cheererTexture.vt3";
connectAttr "cheererTexturePlace.vc1" "cheererTexture.vc1";
connectAttr "cheererTexturePlace.o" "cheererTexture.uv";
connectAttr "cheererTexturePlace.ofs" "cheererTexture.fs";
connectAttr "cheererTexture.oc" "cheererSwitch.sh0";
connectAttr "cheererMat.oc" "cheererSG.ss";
connectAttr "|crowd|row1|figure3|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row1|figure5|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row1|figure11|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row1|figure12|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row1|figure13|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row2|figure20|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row2|figure26|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row2|figure33|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row3|figure41|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row3|figure58|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row4|figure61|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row4|figure62|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row4|figure82|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row4|figure85|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row5|figure90|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row5|figure92|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row5|figure103|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row5|figure109|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row5|figure112|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row5|figure114|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row6|figure127|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row6|figure129|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row6|figure143|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row6|figure144|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row7|figure152|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row7|figure158|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row7|figure168|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row7|figure175|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row7|figure176|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row7|figure179|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row7|figure182|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row7|figure183|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row7|figure187|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row8|figure215|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row8|figure216|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row8|figure220|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row8|figure226|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row8|figure227|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row8|figure228|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row8|figure233|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row9|figure238|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row9|figure260|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row9|figure263|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row9|figure264|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row9|figure265|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row9|figure273|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "cheererSG.msg" "cheererInfo.sg";
connectAttr "cheererMat.msg" "cheererInfo.m";
connectAttr "cheererSwitch.op" "cheererShift.in";
connectAttr "cheererShift.op" "cheererMat.c";
connectAttr "objectNumber.op" "cheererSwitch.sel";
connectAttr "stageMat.oc" "stageSG.ss";
connectAttr "stageShape.iog" "stageSG.dsm" -na;
connectAttr "stageSG.msg" "stageInfo.sg";
connectAttr "stageMat.msg" "stageInfo.m";
connectAttr "standerSwitch.op" "waverSwitch.sh1";
connectAttr "standerSG.pa" ":renderPartition.st" -na;
connectAttr "walkerSG.pa" ":renderPartition.st" -na;
connectAttr "waverSG.pa" ":renderPartition.st" -na;
connectAttr "cheererSG.pa" ":renderPartition.st" -na;
connectAttr "stageSG.pa" ":renderPartition.st" -na;
connectAttr "standerMat.msg" ":defaultShaderList1.s" -na;
connectAttr "walkerMat.msg" ":defaultShaderList1.s" -na;
connectAttr "waverMat.msg" ":defaultShaderList1.s" -na;
connectAttr "cheererMat.msg" ":defaultShaderList1.s" -na;
connectAttr "stageMat.msg" ":defaultShaderList1.s" -na;
connectAttr "clothesIndex.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "objectNumber.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "standerSwitch.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "walkerSwitch.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "walkerShift.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "waverSwitch.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "cheererSwitch.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "cheererShift.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "walkerTexturePlace.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "cheererTexturePlace.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "clothesIndex3Delight.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "clothes3Delight.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "defaultRenderLayer.msg" ":defaultRenderingList1.r" -na;
connectAttr "walkerTexture.msg" ":defaultTextureList1.tx" -na;
connectAttr "cheererTexture.msg" ":defaultTextureList1.tx" -na;
// End of crowd_shot.ma
