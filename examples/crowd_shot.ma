//Maya ASCII 2016 scene
//Name: crowd_shot.ma
//Last modified: Mon, Mar 07, 2016 10:12:31 AM
//Codeset: UTF-8
requires maya "2016";
requires -nodeType "CrowdProxyVRay" -nodeType "CrowdSwitchShaderVRay" "tvxCrowdRender" "2.5.0.1";
currentUnit -l centimeter -a degree -t film;
fileInfo "application" "maya";
fileInfo "product" "Maya 2016";
fileInfo "version" "2016";
fileInfo "osv" "Linux 3.10.0-327.el7.x86_64";
createNode transform -s -n "persp";
	rename -uid "CCC1A295-537E-7AEB-9A8B-B76929860256";
	setAttr ".v" no;
	setAttr ".t" -type "double3" 9.5 7.5 15.5 ;
	setAttr ".r" -type "double3" -20.345402895345774 30.699722550814414 0 ;
createNode camera -s -n "perspShape" -p "persp";
	rename -uid "C10257F9-A629-AB9D-53A7-DB6204D98D4F";
	setAttr -k off ".v" no;
	setAttr ".fl" 34.999999999999993;
	setAttr ".coi" 19.845906378898395;
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
	setAttr ".t" -type "double3" 0 0 -4 ;
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
	setAttr ".t" -type "double3" -3.916 0 -2.62 ;
	setAttr ".r" -type "double3" 0 122.24 0 ;
	setAttr ".s" -type "double3" 0.982 0.982 0.982 ;
createNode mesh -n "waverShape" -p "figure1";
	rename -uid "E86903E1-9E6D-42AD-4E48-A8C7AF7F2AC4";
	setAttr -k off ".v";
	setAttr -s 85 ".iog";
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
	setAttr ".t" -type "double3" -3.756 0 -1.983 ;
	setAttr ".r" -type "double3" 0 110.5 0 ;
	setAttr ".s" -type "double3" 1.014 1.014 1.014 ;
createNode mesh -n "standerShape" -p "figure2";
	rename -uid "4A81F0C3-4399-BF01-A4E1-CBBEBD276305";
	setAttr -k off ".v";
	setAttr -s 168 ".iog";
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
	setAttr ".t" -type "double3" -3.441 0 -1.402 ;
	setAttr ".r" -type "double3" 0 127.37 0 ;
	setAttr ".s" -type "double3" 1.086 1.086 1.086 ;
createNode mesh -n "cheererShape" -p "figure3";
	rename -uid "5B5544EB-3499-3C03-5006-205C515E25C3";
	setAttr -k off ".v";
	setAttr -s 49 ".iog";
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
	setAttr ".t" -type "double3" -2.871 0 -1.039 ;
	setAttr ".r" -type "double3" 0 147.81 0 ;
	setAttr ".s" -type "double3" 1.057 1.057 1.057 ;
createNode transform -n "figure5" -p "|crowd|row1";
	rename -uid "5709686A-0534-A35C-3E60-ABC91ADD7EBE";
	setAttr ".t" -type "double3" -2.484 0 -0.491 ;
	setAttr ".r" -type "double3" 0 151.89 0 ;
	setAttr ".s" -type "double3" 1.019 1.019 1.019 ;
createNode transform -n "figure6" -p "|crowd|row1";
	rename -uid "C353CDA7-C02B-29AD-9C29-BA97B4E3C754";
	setAttr ".t" -type "double3" -1.895 0 -0.193 ;
	setAttr ".r" -type "double3" 0 163.29 0 ;
	setAttr ".s" -type "double3" 0.949 0.949 0.949 ;
createNode transform -n "figure7" -p "|crowd|row1";
	rename -uid "06D9C0E9-70D1-22A5-E0B9-7BAC1787A2C8";
	setAttr ".t" -type "double3" -1.277 0 0.015 ;
	setAttr ".r" -type "double3" 0 149.33 0 ;
	setAttr ".s" -type "double3" 0.917 0.917 0.917 ;
createNode mesh -n "walkerShape" -p "figure7";
	rename -uid "FEC200C6-E9A4-E49E-4C22-D2CB9868415E";
	setAttr -k off ".v";
	setAttr -s 44 ".iog";
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
	setAttr ".t" -type "double3" -0.634 0 0.083 ;
	setAttr ".r" -type "double3" 0 163.77 0 ;
	setAttr ".s" -type "double3" 1.003 1.003 1.003 ;
createNode transform -n "figure9" -p "|crowd|row1";
	rename -uid "7CF24C1D-9568-6350-687F-D7DEF3F715CD";
	setAttr ".t" -type "double3" 0 0 0.258 ;
	setAttr ".r" -type "double3" 0 168.71 0 ;
	setAttr ".s" -type "double3" 1.087 1.087 1.087 ;
createNode transform -n "figure10" -p "|crowd|row1";
	rename -uid "9F2CDEB2-6187-4F14-3656-4596739239B3";
	setAttr ".t" -type "double3" 0.654 0 0.215 ;
	setAttr ".r" -type "double3" 0 196.43 0 ;
	setAttr ".s" -type "double3" 1.023 1.023 1.023 ;
createNode transform -n "figure11" -p "|crowd|row1";
	rename -uid "DD081479-BC34-CE42-1A8C-2C94A4BD5BD7";
	setAttr ".t" -type "double3" 1.264 0 -0.026 ;
	setAttr ".r" -type "double3" 0 190.01 0 ;
	setAttr ".s" -type "double3" 1.074 1.074 1.074 ;
createNode transform -n "figure12" -p "|crowd|row1";
	rename -uid "5C7E65CF-7A8E-44E5-A035-C516E5E1FE6F";
	setAttr ".t" -type "double3" 1.911 0 -0.163 ;
	setAttr ".r" -type "double3" 0 202.89 0 ;
	setAttr ".s" -type "double3" 1.068 1.068 1.068 ;
createNode transform -n "figure13" -p "|crowd|row1";
	rename -uid "335DC5FD-5275-97C7-FBAA-3EDE0FED9A70";
	setAttr ".t" -type "double3" 2.363 0 -0.662 ;
	setAttr ".r" -type "double3" 0 229.01 0 ;
	setAttr ".s" -type "double3" 0.995 0.995 0.995 ;
createNode transform -n "figure14" -p "|crowd|row1";
	rename -uid "A96FFDEA-7415-3BC4-FC2B-1D1677E88480";
	setAttr ".t" -type "double3" 2.965 0 -0.942 ;
	setAttr ".r" -type "double3" 0 220.41 0 ;
	setAttr ".s" -type "double3" 0.939 0.939 0.939 ;
createNode transform -n "figure15" -p "|crowd|row1";
	rename -uid "E9C35F9E-6501-FF54-4D1C-2F5E299BB08F";
	setAttr ".t" -type "double3" 3.321 0 -1.492 ;
	setAttr ".r" -type "double3" 0 231.95 0 ;
	setAttr ".s" -type "double3" 0.945 0.945 0.945 ;
createNode transform -n "figure16" -p "|crowd|row1";
	rename -uid "F2FA0E01-F493-6789-CA11-9AF7CB2B7674";
	setAttr ".t" -type "double3" 3.723 0 -2.001 ;
	setAttr ".r" -type "double3" 0 255.7 0 ;
	setAttr ".s" -type "double3" 1.085 1.085 1.085 ;
createNode transform -n "figure17" -p "|crowd|row1";
	rename -uid "174FD1B4-A9D1-A4A8-DDB1-2F4E8B74080F";
	setAttr ".t" -type "double3" 3.971 0 -2.601 ;
	setAttr ".r" -type "double3" 0 242.03 0 ;
	setAttr ".s" -type "double3" 1.078 1.078 1.078 ;
createNode transform -n "row2" -p "crowd";
	rename -uid "F5EF2CB1-D9C0-475F-C8BC-9BBAB32706C8";
createNode transform -n "figure18" -p "|crowd|row2";
	rename -uid "23628BDA-199A-DE21-9EED-33673EB9046C";
	setAttr ".t" -type "double3" -4.682 0 -2.427 ;
	setAttr ".r" -type "double3" 0 115.2 0 ;
	setAttr ".s" -type "double3" 0.925 0.925 0.925 ;
createNode transform -n "figure19" -p "|crowd|row2";
	rename -uid "BB79E901-01A1-509D-8A7E-A587D61C9E10";
	setAttr ".t" -type "double3" -4.45 0 -1.857 ;
	setAttr ".r" -type "double3" 0 105.65 0 ;
	setAttr ".s" -type "double3" 1.089 1.089 1.089 ;
createNode transform -n "figure20" -p "|crowd|row2";
	rename -uid "6D0FEDE1-2590-518E-808B-2357FE133FED";
	setAttr ".t" -type "double3" -4.28 0 -1.236 ;
	setAttr ".r" -type "double3" 0 124.76 0 ;
	setAttr ".s" -type "double3" 0.935 0.935 0.935 ;
createNode transform -n "figure21" -p "|crowd|row2";
	rename -uid "D31BBDCA-C380-3083-C2B0-B36486128788";
	setAttr ".t" -type "double3" -3.835 0 -0.782 ;
	setAttr ".r" -type "double3" 0 137.7 0 ;
	setAttr ".s" -type "double3" 1.011 1.011 1.011 ;
createNode transform -n "figure22" -p "|crowd|row2";
	rename -uid "0C5B5C36-A79C-3C9C-4DF5-24A57DDA583C";
	setAttr ".t" -type "double3" -3.381 0 -0.356 ;
	setAttr ".r" -type "double3" 0 144 0 ;
	setAttr ".s" -type "double3" 0.942 0.942 0.942 ;
createNode transform -n "figure23" -p "|crowd|row2";
	rename -uid "853E761C-CCFD-6D71-FAEF-C853F6647587";
	setAttr ".t" -type "double3" -2.895 0 0.027 ;
	setAttr ".r" -type "double3" 0 155.68 0 ;
	setAttr ".s" -type "double3" 1.08 1.08 1.08 ;
createNode transform -n "figure24" -p "|crowd|row2";
	rename -uid "E322FBE4-0DD7-B631-A6EB-F57FCC93B4EA";
	setAttr ".t" -type "double3" -2.444 0 0.488 ;
	setAttr ".r" -type "double3" 0 146.93 0 ;
	setAttr ".s" -type "double3" 0.92 0.92 0.92 ;
createNode transform -n "figure25" -p "|crowd|row2";
	rename -uid "58BAF25A-D3E4-A591-17FF-111122202D28";
	setAttr ".t" -type "double3" -1.807 0 0.604 ;
	setAttr ".r" -type "double3" 0 162.38 0 ;
	setAttr ".s" -type "double3" 1.003 1.003 1.003 ;
createNode transform -n "figure26" -p "|crowd|row2";
	rename -uid "8D682E6F-6CCF-A79A-A14E-0EF9008695C8";
	setAttr ".t" -type "double3" -1.251 0 0.913 ;
	setAttr ".r" -type "double3" 0 161.17 0 ;
createNode transform -n "figure27" -p "|crowd|row2";
	rename -uid "90D4FAB5-D4E4-4B25-543D-E3EF1C6A7CBB";
	setAttr ".t" -type "double3" -0.615 0 0.905 ;
	setAttr ".r" -type "double3" 0 165.13 0 ;
	setAttr ".s" -type "double3" 0.984 0.984 0.984 ;
createNode transform -n "figure28" -p "|crowd|row2";
	rename -uid "F6212864-68BB-7A78-FA69-152C57A92BFF";
	setAttr ".t" -type "double3" 0 0 1.048 ;
	setAttr ".r" -type "double3" 0 169.79 0 ;
	setAttr ".s" -type "double3" 0.923 0.923 0.923 ;
createNode transform -n "figure29" -p "|crowd|row2";
	rename -uid "F8D222A7-007E-82D6-EEF8-B0FB118A0CEB";
	setAttr ".t" -type "double3" 0.626 0 0.998 ;
	setAttr ".r" -type "double3" 0 191.38 0 ;
	setAttr ".s" -type "double3" 1.044 1.044 1.044 ;
createNode transform -n "figure30" -p "|crowd|row2";
	rename -uid "131D67A1-2E95-75BF-598D-C7EE82201B0A";
	setAttr ".t" -type "double3" 1.254 0 0.925 ;
	setAttr ".r" -type "double3" 0 199.26 0 ;
	setAttr ".s" -type "double3" 0.911 0.911 0.911 ;
createNode transform -n "figure31" -p "|crowd|row2";
	rename -uid "A750B0AE-71D3-092F-F886-527E14CF99AD";
	setAttr ".t" -type "double3" 1.834 0 0.673 ;
	setAttr ".r" -type "double3" 0 190.96 0 ;
	setAttr ".s" -type "double3" 1.091 1.091 1.091 ;
createNode transform -n "figure32" -p "|crowd|row2";
	rename -uid "3DD1E4BA-212F-1FF2-0A56-73B6841E2487";
	setAttr ".t" -type "double3" 2.469 0 0.534 ;
	setAttr ".r" -type "double3" 0 209.99 0 ;
	setAttr ".s" -type "double3" 0.999 0.999 0.999 ;
createNode transform -n "figure33" -p "|crowd|row2";
	rename -uid "C47B8E54-31FB-C89F-0F84-8E34EE9944F4";
	setAttr ".t" -type "double3" 2.967 0 0.127 ;
	setAttr ".r" -type "double3" 0 219.57 0 ;
	setAttr ".s" -type "double3" 1.065 1.065 1.065 ;
createNode transform -n "figure34" -p "|crowd|row2";
	rename -uid "482D68FD-4E89-69EB-148C-0B74FBE70626";
	setAttr ".t" -type "double3" 3.437 0 -0.296 ;
	setAttr ".r" -type "double3" 0 229.17 0 ;
	setAttr ".s" -type "double3" 1.008 1.008 1.008 ;
createNode transform -n "figure35" -p "|crowd|row2";
	rename -uid "143037FB-023B-120C-5951-5EE54748B485";
	setAttr ".t" -type "double3" 3.795 0 -0.816 ;
	setAttr ".r" -type "double3" 0 233.37 0 ;
	setAttr ".s" -type "double3" 0.981 0.981 0.981 ;
createNode transform -n "figure36" -p "|crowd|row2";
	rename -uid "BFC34DFB-B577-A21C-0701-9901CC7BC04B";
	setAttr ".t" -type "double3" 4.15 0 -1.319 ;
	setAttr ".r" -type "double3" 0 249.26 0 ;
	setAttr ".s" -type "double3" 0.973 0.973 0.973 ;
createNode transform -n "figure37" -p "|crowd|row2";
	rename -uid "FDD214BB-5C07-AA87-C3A9-23C25E28BB48";
	setAttr ".t" -type "double3" 4.578 0 -1.795 ;
	setAttr ".r" -type "double3" 0 257.29 0 ;
	setAttr ".s" -type "double3" 0.962 0.962 0.962 ;
createNode transform -n "figure38" -p "|crowd|row2";
	rename -uid "2E927B1F-1E5A-9C27-C398-41D53ADD64D0";
	setAttr ".t" -type "double3" 4.82 0 -2.381 ;
	setAttr ".r" -type "double3" 0 259.01 0 ;
	setAttr ".s" -type "double3" 1.076 1.076 1.076 ;
createNode transform -n "row3" -p "crowd";
	rename -uid "95683543-4AD8-97ED-5D57-E0251B2896A0";
createNode transform -n "figure39" -p "|crowd|row3";
	rename -uid "53ED740C-6879-DA2F-9562-C24898A47AF8";
	setAttr ".t" -type "double3" -5.515 0 -2.195 ;
	setAttr ".r" -type "double3" 0 117.82 0 ;
	setAttr ".s" -type "double3" 1.07 1.07 1.07 ;
createNode transform -n "figure40" -p "|crowd|row3";
	rename -uid "7F61A818-7D3F-DC89-A7E1-AC0AC71B0063";
	setAttr ".t" -type "double3" -5.417 0 -1.545 ;
	setAttr ".r" -type "double3" 0 102.59 0 ;
	setAttr ".s" -type "double3" 1.06 1.06 1.06 ;
createNode transform -n "figure41" -p "|crowd|row3";
	rename -uid "AA8053EB-27A8-680D-803B-FFC8920C1C09";
	setAttr ".t" -type "double3" -5.016 0 -1.031 ;
	setAttr ".r" -type "double3" 0 131.33 0 ;
	setAttr ".s" -type "double3" 1.032 1.032 1.032 ;
createNode transform -n "figure42" -p "|crowd|row3";
	rename -uid "23573CB9-255D-841C-1893-56259559CE8F";
	setAttr ".t" -type "double3" -4.755 0 -0.433 ;
	setAttr ".r" -type "double3" 0 136.6 0 ;
	setAttr ".s" -type "double3" 1.01 1.01 1.01 ;
createNode transform -n "figure43" -p "|crowd|row3";
	rename -uid "22E0B17F-0008-6EAA-4DE5-7119487EFA90";
	setAttr ".t" -type "double3" -4.264 0 -0.007 ;
	setAttr ".r" -type "double3" 0 132.39 0 ;
	setAttr ".s" -type "double3" 0.938 0.938 0.938 ;
createNode transform -n "figure44" -p "|crowd|row3";
	rename -uid "C74F8813-792B-B1E2-4FBC-ED01FD05568A";
	setAttr ".t" -type "double3" -3.836 0 0.472 ;
	setAttr ".r" -type "double3" 0 143.04 0 ;
	setAttr ".s" -type "double3" 0.953 0.953 0.953 ;
createNode transform -n "figure45" -p "|crowd|row3";
	rename -uid "484A574D-956A-DD95-DD08-E2D48EFC1E4A";
	setAttr ".t" -type "double3" -3.274 0 0.787 ;
	setAttr ".r" -type "double3" 0 147.21 0 ;
	setAttr ".s" -type "double3" 1.068 1.068 1.068 ;
createNode transform -n "figure46" -p "|crowd|row3";
	rename -uid "F344578F-3A36-9858-EB19-B0840400EC52";
	setAttr ".t" -type "double3" -2.812 0 1.261 ;
	setAttr ".r" -type "double3" 0 139.15 0 ;
	setAttr ".s" -type "double3" 1.087 1.087 1.087 ;
createNode transform -n "figure47" -p "|crowd|row3";
	rename -uid "8BC8D3A8-4372-D72F-1781-D7C3B425496C";
	setAttr ".t" -type "double3" -2.198 0 1.474 ;
	setAttr ".r" -type "double3" 0 152.36 0 ;
	setAttr ".s" -type "double3" 0.955 0.955 0.955 ;
createNode transform -n "figure48" -p "|crowd|row3";
	rename -uid "2364DC23-4D46-6577-4E60-5711533E7CB1";
	setAttr ".t" -type "double3" -1.585 0 1.669 ;
	setAttr ".r" -type "double3" 0 172.79 0 ;
	setAttr ".s" -type "double3" 0.972 0.972 0.972 ;
createNode transform -n "figure49" -p "|crowd|row3";
	rename -uid "A6172676-AF47-506B-45BD-16FD355E66B7";
	setAttr ".t" -type "double3" -0.968 0 1.863 ;
	setAttr ".r" -type "double3" 0 181.56 0 ;
createNode transform -n "figure50" -p "|crowd|row3";
	rename -uid "8EF37026-CEAA-468C-7EA2-08DBA08C41B4";
	setAttr ".t" -type "double3" -0.322 0 1.891 ;
	setAttr ".r" -type "double3" 0 181.67 0 ;
	setAttr ".s" -type "double3" 1.031 1.031 1.031 ;
createNode transform -n "figure51" -p "|crowd|row3";
	rename -uid "5A7F8B4B-E203-5BFB-681E-DAC01F0B3650";
	setAttr ".t" -type "double3" 0.322 0 1.894 ;
	setAttr ".r" -type "double3" 0 186.85 0 ;
	setAttr ".s" -type "double3" 0.928 0.928 0.928 ;
createNode transform -n "figure52" -p "|crowd|row3";
	rename -uid "F28F66AE-EC4E-BB15-C101-B2C0CE160F69";
	setAttr ".t" -type "double3" 0.972 0 1.887 ;
	setAttr ".r" -type "double3" 0 185.8 0 ;
	setAttr ".s" -type "double3" 0.979 0.979 0.979 ;
createNode transform -n "figure53" -p "|crowd|row3";
	rename -uid "787AA7FF-12BD-E72F-E188-587E93A237D6";
	setAttr ".t" -type "double3" 1.593 0 1.697 ;
	setAttr ".r" -type "double3" 0 184.75 0 ;
	setAttr ".s" -type "double3" 0.948 0.948 0.948 ;
createNode transform -n "figure54" -p "|crowd|row3";
	rename -uid "E0C80842-DEAE-2CD8-13FD-941BBB2006EC";
	setAttr ".t" -type "double3" 2.158 0 1.375 ;
	setAttr ".r" -type "double3" 0 207.64 0 ;
	setAttr ".s" -type "double3" 1.079 1.079 1.079 ;
createNode transform -n "figure55" -p "|crowd|row3";
	rename -uid "2997EF13-02F3-70BF-BC10-B72E9D44DBF4";
	setAttr ".t" -type "double3" 2.729 0 1.106 ;
	setAttr ".r" -type "double3" 0 203.73 0 ;
	setAttr ".s" -type "double3" 0.985 0.985 0.985 ;
createNode transform -n "figure56" -p "|crowd|row3";
	rename -uid "7992077E-64CD-4096-215F-AC2EA01673C3";
	setAttr ".t" -type "double3" 3.318 0 0.85 ;
	setAttr ".r" -type "double3" 0 215.64 0 ;
	setAttr ".s" -type "double3" 0.944 0.944 0.944 ;
createNode transform -n "figure57" -p "|crowd|row3";
	rename -uid "54B07161-0541-662A-017C-22345D2258C6";
	setAttr ".t" -type "double3" 3.836 0 0.471 ;
	setAttr ".r" -type "double3" 0 224.34 0 ;
	setAttr ".s" -type "double3" 0.992 0.992 0.992 ;
createNode transform -n "figure58" -p "|crowd|row3";
	rename -uid "F8D34E2D-C269-AEF4-FA39-F1D10AD5D5E6";
	setAttr ".t" -type "double3" 4.39 0 0.112 ;
	setAttr ".r" -type "double3" 0 228.76 0 ;
	setAttr ".s" -type "double3" 0.914 0.914 0.914 ;
createNode transform -n "figure59" -p "|crowd|row3";
	rename -uid "FA3332A0-8D4C-187E-2BA0-A805BCD2D8E1";
	setAttr ".t" -type "double3" 4.666 0 -0.5 ;
	setAttr ".r" -type "double3" 0 237.43 0 ;
	setAttr ".s" -type "double3" 1.087 1.087 1.087 ;
createNode transform -n "figure60" -p "|crowd|row3";
	rename -uid "B29291F4-3EC8-C725-1097-3583972A8676";
	setAttr ".t" -type "double3" 4.989 0 -1.047 ;
	setAttr ".r" -type "double3" 0 248.08 0 ;
	setAttr ".s" -type "double3" 1.079 1.079 1.079 ;
createNode transform -n "figure61" -p "|crowd|row3";
	rename -uid "CE603D03-FE34-BA54-95FE-D638F219EE13";
	setAttr ".t" -type "double3" 5.425 0 -1.542 ;
	setAttr ".r" -type "double3" 0 255.04 0 ;
	setAttr ".s" -type "double3" 1.006 1.006 1.006 ;
createNode transform -n "figure62" -p "|crowd|row3";
	rename -uid "A8C7ECF0-5C1F-75AC-B538-0C1117C781B4";
	setAttr ".t" -type "double3" 5.579 0 -2.174 ;
	setAttr ".r" -type "double3" 0 258.51 0 ;
	setAttr ".s" -type "double3" 1.061 1.061 1.061 ;
createNode transform -n "row4" -p "crowd";
	rename -uid "E4ED43ED-1423-9136-794A-6F912C07724C";
createNode transform -n "figure63" -p "|crowd|row4";
	rename -uid "7336847A-0AFC-EFD1-233F-659FAD29DE9D";
	setAttr ".t" -type "double3" -6.442 0 -1.947 ;
	setAttr ".r" -type "double3" 0 104.05 0 ;
	setAttr ".s" -type "double3" 1.075 1.075 1.075 ;
createNode transform -n "figure64" -p "|crowd|row4";
	rename -uid "36D59D2E-E57E-35D6-84E5-246E8DD04D28";
	setAttr ".t" -type "double3" -6.275 0 -1.332 ;
	setAttr ".r" -type "double3" 0 101.88 0 ;
	setAttr ".s" -type "double3" 0.974 0.974 0.974 ;
createNode transform -n "figure65" -p "|crowd|row4";
	rename -uid "B9923B70-93C4-885F-E721-B6A35F68812C";
	setAttr ".t" -type "double3" -5.986 0 -0.764 ;
	setAttr ".r" -type "double3" 0 111.27 0 ;
	setAttr ".s" -type "double3" 0.908 0.908 0.908 ;
createNode transform -n "figure66" -p "|crowd|row4";
	rename -uid "85596B2B-098B-6BCF-242C-BEB715267F00";
	setAttr ".t" -type "double3" -5.684 0 -0.202 ;
	setAttr ".r" -type "double3" 0 119.42 0 ;
	setAttr ".s" -type "double3" 1.028 1.028 1.028 ;
createNode transform -n "figure67" -p "|crowd|row4";
	rename -uid "1ED1049F-AE58-8024-16CD-F54E9A4A2F39";
	setAttr ".t" -type "double3" -5.219 0 0.242 ;
	setAttr ".r" -type "double3" 0 130.88 0 ;
	setAttr ".s" -type "double3" 1.067 1.067 1.067 ;
createNode transform -n "figure68" -p "|crowd|row4";
	rename -uid "90F2D830-E4D4-7FE5-3F2E-09A03A8D37C2";
	setAttr ".t" -type "double3" -4.877 0 0.786 ;
	setAttr ".r" -type "double3" 0 147.2 0 ;
	setAttr ".s" -type "double3" 0.991 0.991 0.991 ;
createNode transform -n "figure69" -p "|crowd|row4";
	rename -uid "9F8D43DB-851A-59E8-39C2-3B658EFD14D4";
	setAttr ".t" -type "double3" -4.314 0 1.109 ;
	setAttr ".r" -type "double3" 0 148.11 0 ;
	setAttr ".s" -type "double3" 1.025 1.025 1.025 ;
createNode transform -n "figure70" -p "|crowd|row4";
	rename -uid "8E7152FF-BE1F-CEA6-C5F8-910189B54053";
	setAttr ".t" -type "double3" -3.787 0 1.444 ;
	setAttr ".r" -type "double3" 0 133.26 0 ;
	setAttr ".s" -type "double3" 1.085 1.085 1.085 ;
createNode transform -n "figure71" -p "|crowd|row4";
	rename -uid "2505973D-DF31-305B-3DBA-24B372D438E7";
	setAttr ".t" -type "double3" -3.374 0 1.972 ;
	setAttr ".r" -type "double3" 0 159.55 0 ;
	setAttr ".s" -type "double3" 0.996 0.996 0.996 ;
createNode transform -n "figure72" -p "|crowd|row4";
	rename -uid "5DE714E2-32B4-2E1A-E7A0-76920A892527";
	setAttr ".t" -type "double3" -2.761 0 2.169 ;
	setAttr ".r" -type "double3" 0 146.13 0 ;
	setAttr ".s" -type "double3" 1.014 1.014 1.014 ;
createNode transform -n "figure73" -p "|crowd|row4";
	rename -uid "8F43ABB1-BB95-E738-DE54-F8BC60B61E26";
	setAttr ".t" -type "double3" -2.19 0 2.452 ;
	setAttr ".r" -type "double3" 0 150.15 0 ;
	setAttr ".s" -type "double3" 0.955 0.955 0.955 ;
createNode transform -n "figure74" -p "|crowd|row4";
	rename -uid "CB4C945C-E4B3-57DB-DE9F-61955F4A5078";
	setAttr ".t" -type "double3" -1.576 0 2.617 ;
	setAttr ".r" -type "double3" 0 172.18 0 ;
	setAttr ".s" -type "double3" 1.073 1.073 1.073 ;
createNode transform -n "figure75" -p "|crowd|row4";
	rename -uid "156D4D52-E3D4-6F0A-FD08-9D091EF8DDA0";
	setAttr ".t" -type "double3" -0.948 0 2.713 ;
	setAttr ".r" -type "double3" 0 174.06 0 ;
	setAttr ".s" -type "double3" 0.953 0.953 0.953 ;
createNode transform -n "figure76" -p "|crowd|row4";
	rename -uid "164D5F91-987E-13A2-AA45-65317F2EAC6B";
	setAttr ".t" -type "double3" -0.314 0 2.713 ;
	setAttr ".r" -type "double3" 0 182.33 0 ;
	setAttr ".s" -type "double3" 1.018 1.018 1.018 ;
createNode transform -n "figure77" -p "|crowd|row4";
	rename -uid "1BE80A6C-88F6-F425-5716-A8F92670B946";
	setAttr ".t" -type "double3" 0.317 0 2.778 ;
	setAttr ".r" -type "double3" 0 177.86 0 ;
	setAttr ".s" -type "double3" 0.954 0.954 0.954 ;
createNode transform -n "figure78" -p "|crowd|row4";
	rename -uid "508207B0-1AC5-F04F-EBB8-E897059C8748";
	setAttr ".t" -type "double3" 0.955 0 2.765 ;
	setAttr ".r" -type "double3" 0 177.12 0 ;
	setAttr ".s" -type "double3" 1.032 1.032 1.032 ;
createNode transform -n "figure79" -p "|crowd|row4";
	rename -uid "C6B2C0F1-AE58-C2E7-F766-5144C6FB8FE4";
	setAttr ".t" -type "double3" 1.577 0 2.624 ;
	setAttr ".r" -type "double3" 0 181.59 0 ;
	setAttr ".s" -type "double3" 1.072 1.072 1.072 ;
createNode transform -n "figure80" -p "|crowd|row4";
	rename -uid "085D78D2-0743-82CE-4ACA-222BAD1AF195";
	setAttr ".t" -type "double3" 2.132 0 2.279 ;
	setAttr ".r" -type "double3" 0 212.19 0 ;
	setAttr ".s" -type "double3" 1.071 1.071 1.071 ;
createNode transform -n "figure81" -p "|crowd|row4";
	rename -uid "B3796F77-A8F9-4CB5-62B0-62F24608E531";
	setAttr ".t" -type "double3" 2.755 0 2.157 ;
	setAttr ".r" -type "double3" 0 197.61 0 ;
	setAttr ".s" -type "double3" 1.021 1.021 1.021 ;
createNode transform -n "figure82" -p "|crowd|row4";
	rename -uid "7A87EA6E-AB8B-7809-E13A-5D3060EF5B50";
	setAttr ".t" -type "double3" 3.29 0 1.824 ;
	setAttr ".r" -type "double3" 0 209.33 0 ;
	setAttr ".s" -type "double3" 0.903 0.903 0.903 ;
createNode transform -n "figure83" -p "|crowd|row4";
	rename -uid "55D4B5A4-3976-03FE-79CD-E5C8B373C8BB";
	setAttr ".t" -type "double3" 3.854 0 1.541 ;
	setAttr ".r" -type "double3" 0 211.78 0 ;
	setAttr ".s" -type "double3" 1.099 1.099 1.099 ;
createNode transform -n "figure84" -p "|crowd|row4";
	rename -uid "F43BF8E3-EEFF-43EB-E3C1-FEBA26695A70";
	setAttr ".t" -type "double3" 4.332 0 1.13 ;
	setAttr ".r" -type "double3" 0 207.17 0 ;
	setAttr ".s" -type "double3" 1.045 1.045 1.045 ;
createNode transform -n "figure85" -p "|crowd|row4";
	rename -uid "3AD66433-A756-FE5F-F41E-C3AF692DD182";
	setAttr ".t" -type "double3" 4.808 0 0.719 ;
	setAttr ".r" -type "double3" 0 233.99 0 ;
	setAttr ".s" -type "double3" 1.011 1.011 1.011 ;
createNode transform -n "figure86" -p "|crowd|row4";
	rename -uid "E32668E1-FDB3-33B0-F474-3E7AF7941269";
	setAttr ".t" -type "double3" 5.258 0 0.274 ;
	setAttr ".r" -type "double3" 0 227.68 0 ;
	setAttr ".s" -type "double3" 0.993 0.993 0.993 ;
createNode transform -n "figure87" -p "|crowd|row4";
	rename -uid "0DBE2CC8-3D23-DC62-B299-C647E4CB48B7";
	setAttr ".t" -type "double3" 5.7 0 -0.192 ;
	setAttr ".r" -type "double3" 0 226.33 0 ;
	setAttr ".s" -type "double3" 0.933 0.933 0.933 ;
createNode transform -n "figure88" -p "|crowd|row4";
	rename -uid "1D189EAD-230E-B900-4685-3B6E0C8EB5B3";
	setAttr ".t" -type "double3" 5.865 0 -0.83 ;
	setAttr ".r" -type "double3" 0 240.76 0 ;
	setAttr ".s" -type "double3" 1.078 1.078 1.078 ;
createNode transform -n "figure89" -p "|crowd|row4";
	rename -uid "2C4F9BC1-04A3-281C-7950-9A18DF1B1B47";
	setAttr ".t" -type "double3" 6.263 0 -1.337 ;
	setAttr ".r" -type "double3" 0 250.06 0 ;
	setAttr ".s" -type "double3" 1.007 1.007 1.007 ;
createNode transform -n "figure90" -p "|crowd|row4";
	rename -uid "4AC95F12-DC26-8464-3CB0-23FA482EB260";
	setAttr ".t" -type "double3" 6.53 0 -1.919 ;
	setAttr ".r" -type "double3" 0 243.37 0 ;
	setAttr ".s" -type "double3" 0.992 0.992 0.992 ;
createNode transform -n "row5" -p "crowd";
	rename -uid "532AEE3E-77F3-79A2-893D-3177BD476EF3";
createNode transform -n "figure91" -p "|crowd|row5";
	rename -uid "EC76A46D-64D4-301F-35B9-BB525E2BAE60";
	setAttr ".t" -type "double3" -7.168 0 -1.762 ;
	setAttr ".r" -type "double3" 0 93.62 0 ;
	setAttr ".s" -type "double3" 1.092 1.092 1.092 ;
createNode transform -n "figure92" -p "|crowd|row5";
	rename -uid "759419BD-04D3-4DBF-FE88-88740B9EA7E1";
	setAttr ".t" -type "double3" -7.149 0 -1.107 ;
	setAttr ".r" -type "double3" 0 113.22 0 ;
	setAttr ".s" -type "double3" 0.92 0.92 0.92 ;
createNode transform -n "figure93" -p "|crowd|row5";
	rename -uid "20AF03A3-9144-06C5-C2FB-DCF8E6981481";
	setAttr ".t" -type "double3" -6.792 0 -0.581 ;
	setAttr ".r" -type "double3" 0 103.72 0 ;
	setAttr ".s" -type "double3" 1.079 1.079 1.079 ;
createNode transform -n "figure94" -p "|crowd|row5";
	rename -uid "36AE16BA-7383-B4A5-4088-FA5BD4964064";
	setAttr ".t" -type "double3" -6.549 0 -0.001 ;
	setAttr ".r" -type "double3" 0 127.56 0 ;
	setAttr ".s" -type "double3" 1.081 1.081 1.081 ;
createNode transform -n "figure95" -p "|crowd|row5";
	rename -uid "386B16AD-F6FA-95AC-13E4-B96D91025BC4";
	setAttr ".t" -type "double3" -6.194 0 0.516 ;
	setAttr ".r" -type "double3" 0 122.32 0 ;
	setAttr ".s" -type "double3" 1.052 1.052 1.052 ;
createNode transform -n "figure96" -p "|crowd|row5";
	rename -uid "78C8AFEC-71C9-FA63-DFA4-4831113CDE40";
	setAttr ".t" -type "double3" -5.784 0 0.989 ;
	setAttr ".r" -type "double3" 0 123.46 0 ;
	setAttr ".s" -type "double3" 0.907 0.907 0.907 ;
createNode transform -n "figure97" -p "|crowd|row5";
	rename -uid "178C5AB3-40CC-E653-D302-E8C07CF445E3";
	setAttr ".t" -type "double3" -5.304 0 1.391 ;
	setAttr ".r" -type "double3" 0 123.7 0 ;
	setAttr ".s" -type "double3" 0.934 0.934 0.934 ;
createNode transform -n "figure98" -p "|crowd|row5";
	rename -uid "D9E1525B-9147-140D-BAC7-489156708D21";
	setAttr ".t" -type "double3" -4.83 0 1.788 ;
	setAttr ".r" -type "double3" 0 135.35 0 ;
	setAttr ".s" -type "double3" 1.04 1.04 1.04 ;
createNode transform -n "figure99" -p "|crowd|row5";
	rename -uid "3F1AB6A8-BDF8-EB44-A7B8-8AD654FAABE0";
	setAttr ".t" -type "double3" -4.324 0 2.14 ;
	setAttr ".r" -type "double3" 0 157.49 0 ;
	setAttr ".s" -type "double3" 0.939 0.939 0.939 ;
createNode transform -n "figure100" -p "|crowd|row5";
	rename -uid "B327BA30-479B-C392-CB65-7A027F4FDF58";
	setAttr ".t" -type "double3" -3.803 0 2.465 ;
	setAttr ".r" -type "double3" 0 156.84 0 ;
	setAttr ".s" -type "double3" 0.942 0.942 0.942 ;
createNode transform -n "figure101" -p "|crowd|row5";
	rename -uid "B53203C0-A4B9-2C16-8FEF-AC5EAE887477";
	setAttr ".t" -type "double3" -3.259 0 2.747 ;
	setAttr ".r" -type "double3" 0 150.33 0 ;
	setAttr ".s" -type "double3" 1.028 1.028 1.028 ;
createNode transform -n "figure102" -p "|crowd|row5";
	rename -uid "4140BFBC-74F5-71EA-4472-0366E08495D6";
	setAttr ".t" -type "double3" -2.712 0 3.03 ;
	setAttr ".r" -type "double3" 0 162.46 0 ;
	setAttr ".s" -type "double3" 0.958 0.958 0.958 ;
createNode transform -n "figure103" -p "|crowd|row5";
	rename -uid "F735436F-3458-5B39-614C-5E51687684B7";
	setAttr ".t" -type "double3" -2.164 0 3.35 ;
	setAttr ".r" -type "double3" 0 164.79 0 ;
	setAttr ".s" -type "double3" 0.942 0.942 0.942 ;
createNode transform -n "figure104" -p "|crowd|row5";
	rename -uid "62A394B2-CF1B-165C-B645-2C4C0F1E7442";
	setAttr ".t" -type "double3" -1.547 0 3.457 ;
	setAttr ".r" -type "double3" 0 171.11 0 ;
	setAttr ".s" -type "double3" 0.952 0.952 0.952 ;
createNode transform -n "figure105" -p "|crowd|row5";
	rename -uid "78A1D534-0E07-E2A8-FADC-A931C4CD87D0";
	setAttr ".t" -type "double3" -0.928 0 3.521 ;
	setAttr ".r" -type "double3" 0 182.44 0 ;
	setAttr ".s" -type "double3" 1.042 1.042 1.042 ;
createNode transform -n "figure106" -p "|crowd|row5";
	rename -uid "8991B8DA-B836-5AD6-0EFA-A268769D86B0";
	setAttr ".t" -type "double3" -0.313 0 3.644 ;
	setAttr ".r" -type "double3" 0 176.71 0 ;
	setAttr ".s" -type "double3" 0.939 0.939 0.939 ;
createNode transform -n "figure107" -p "|crowd|row5";
	rename -uid "E14A87B0-2865-1005-B3FC-4E5654E16A0E";
	setAttr ".t" -type "double3" 0.315 0 3.702 ;
	setAttr ".r" -type "double3" 0 175.49 0 ;
	setAttr ".s" -type "double3" 1.097 1.097 1.097 ;
createNode transform -n "figure108" -p "|crowd|row5";
	rename -uid "6F3D1486-495D-E641-2563-15F6ABF01A0F";
	setAttr ".t" -type "double3" 0.934 0 3.574 ;
	setAttr ".r" -type "double3" 0 178.33 0 ;
	setAttr ".s" -type "double3" 0.928 0.928 0.928 ;
createNode transform -n "figure109" -p "|crowd|row5";
	rename -uid "779922F9-3F52-3230-1D63-1CEE9EDE5B4A";
	setAttr ".t" -type "double3" 1.538 0 3.415 ;
	setAttr ".r" -type "double3" 0 189.34 0 ;
	setAttr ".s" -type "double3" 0.948 0.948 0.948 ;
createNode transform -n "figure110" -p "|crowd|row5";
	rename -uid "4CD6FC1F-3D42-5055-01E5-FD0DF000551D";
	setAttr ".t" -type "double3" 2.177 0 3.393 ;
	setAttr ".r" -type "double3" 0 205.92 0 ;
	setAttr ".s" -type "double3" 0.925 0.925 0.925 ;
createNode transform -n "figure111" -p "|crowd|row5";
	rename -uid "75709A55-0088-C415-1FD6-360715462AF3";
	setAttr ".t" -type "double3" 2.717 0 3.044 ;
	setAttr ".r" -type "double3" 0 189.74 0 ;
	setAttr ".s" -type "double3" 0.953 0.953 0.953 ;
createNode transform -n "figure112" -p "|crowd|row5";
	rename -uid "81D37B1F-8640-9B36-7C18-A5452218E1B1";
	setAttr ".t" -type "double3" 3.285 0 2.801 ;
	setAttr ".r" -type "double3" 0 211.69 0 ;
	setAttr ".s" -type "double3" 0.991 0.991 0.991 ;
createNode transform -n "figure113" -p "|crowd|row5";
	rename -uid "B7F3B60C-7BCE-1BBF-BB07-A6181FDE983E";
	setAttr ".t" -type "double3" 3.894 0 2.619 ;
	setAttr ".r" -type "double3" 0 219.45 0 ;
	setAttr ".s" -type "double3" 1.055 1.055 1.055 ;
createNode transform -n "figure114" -p "|crowd|row5";
	rename -uid "AFEB22E4-1106-F0E1-6D3B-352C012B6A79";
	setAttr ".t" -type "double3" 4.314 0 2.125 ;
	setAttr ".r" -type "double3" 0 212.69 0 ;
	setAttr ".s" -type "double3" 1.083 1.083 1.083 ;
createNode transform -n "figure115" -p "|crowd|row5";
	rename -uid "36D35377-6D76-4B77-D7D8-40ECDEDD4142";
	setAttr ".t" -type "double3" 4.876 0 1.844 ;
	setAttr ".r" -type "double3" 0 226.1 0 ;
	setAttr ".s" -type "double3" 1.016 1.016 1.016 ;
createNode transform -n "figure116" -p "|crowd|row5";
	rename -uid "2E688D02-71A0-54D8-4B49-E20D5F653E56";
	setAttr ".t" -type "double3" 5.385 0 1.474 ;
	setAttr ".r" -type "double3" 0 224.36 0 ;
	setAttr ".s" -type "double3" 1.048 1.048 1.048 ;
createNode transform -n "figure117" -p "|crowd|row5";
	rename -uid "072DF292-AE9A-7268-2453-BCB2DD0749A8";
	setAttr ".t" -type "double3" 5.751 0 0.961 ;
	setAttr ".r" -type "double3" 0 218.7 0 ;
	setAttr ".s" -type "double3" 1.092 1.092 1.092 ;
createNode transform -n "figure118" -p "|crowd|row5";
	rename -uid "DC9D9190-B786-4ABF-896B-C8845FBBCC9E";
	setAttr ".t" -type "double3" 6.171 0 0.499 ;
	setAttr ".r" -type "double3" 0 220.38 0 ;
	setAttr ".s" -type "double3" 1.021 1.021 1.021 ;
createNode transform -n "figure119" -p "|crowd|row5";
	rename -uid "DB3E46E4-6DB6-EA77-766E-5EBF2A0D3AB7";
	setAttr ".t" -type "double3" 6.521 0 -0.019 ;
	setAttr ".r" -type "double3" 0 233.26 0 ;
	setAttr ".s" -type "double3" 0.922 0.922 0.922 ;
createNode transform -n "figure120" -p "|crowd|row5";
	rename -uid "17CD44F7-CE51-3E4E-7C0D-761E329D2910";
	setAttr ".t" -type "double3" 6.851 0 -0.551 ;
	setAttr ".r" -type "double3" 0 250.11 0 ;
	setAttr ".s" -type "double3" 0.914 0.914 0.914 ;
createNode transform -n "figure121" -p "|crowd|row5";
	rename -uid "24046F3E-6DFE-7D57-913D-57E2DC106B99";
	setAttr ".t" -type "double3" 7.024 0 -1.158 ;
	setAttr ".r" -type "double3" 0 250.81 0 ;
	setAttr ".s" -type "double3" 0.912 0.912 0.912 ;
createNode transform -n "figure122" -p "|crowd|row5";
	rename -uid "1F63FC95-FA88-3AB8-B811-BA7B74F03119";
	setAttr ".t" -type "double3" 7.295 0 -1.722 ;
	setAttr ".r" -type "double3" 0 241.97 0 ;
	setAttr ".s" -type "double3" 0.919 0.919 0.919 ;
createNode transform -n "row6" -p "crowd";
	rename -uid "B7F732E8-543A-318B-5CB5-277E05C0CD4F";
createNode transform -n "figure123" -p "|crowd|row6";
	rename -uid "4A7F1F7C-6227-BC14-68D2-19AE0FBC11C1";
	setAttr ".t" -type "double3" -7.986 0 -1.537 ;
	setAttr ".r" -type "double3" 0 99.24 0 ;
	setAttr ".s" -type "double3" 0.958 0.958 0.958 ;
createNode transform -n "figure124" -p "|crowd|row6";
	rename -uid "A00245A8-031F-0998-1749-07377B730DE0";
	setAttr ".t" -type "double3" -7.926 0 -0.889 ;
	setAttr ".r" -type "double3" 0 102.93 0 ;
	setAttr ".s" -type "double3" 0.997 0.997 0.997 ;
createNode transform -n "figure125" -p "|crowd|row6";
	rename -uid "14383E55-C57B-C405-1741-7ED138DDA8B6";
	setAttr ".t" -type "double3" -7.623 0 -0.329 ;
	setAttr ".r" -type "double3" 0 118.13 0 ;
	setAttr ".s" -type "double3" 1.043 1.043 1.043 ;
createNode transform -n "figure126" -p "|crowd|row6";
	rename -uid "D4108022-1599-A74F-19A4-333CE1A57186";
	setAttr ".t" -type "double3" -7.373 0 0.257 ;
	setAttr ".r" -type "double3" 0 120.25 0 ;
	setAttr ".s" -type "double3" 0.997 0.997 0.997 ;
createNode transform -n "figure127" -p "|crowd|row6";
	rename -uid "3CF7F678-7D26-AA1B-578B-FB6AEFCD5679";
	setAttr ".t" -type "double3" -7.019 0 0.786 ;
	setAttr ".r" -type "double3" 0 127.52 0 ;
	setAttr ".s" -type "double3" 0.924 0.924 0.924 ;
createNode transform -n "figure128" -p "|crowd|row6";
	rename -uid "9C45C8DD-A06B-55B2-E4B3-2CA64FC3ECE6";
	setAttr ".t" -type "double3" -6.673 0 1.321 ;
	setAttr ".r" -type "double3" 0 138.35 0 ;
	setAttr ".s" -type "double3" 1.087 1.087 1.087 ;
createNode transform -n "figure129" -p "|crowd|row6";
	rename -uid "0BFBA927-D9D0-BB66-007B-EC2834F2A795";
	setAttr ".t" -type "double3" -6.277 0 1.824 ;
	setAttr ".r" -type "double3" 0 142.95 0 ;
	setAttr ".s" -type "double3" 0.995 0.995 0.995 ;
createNode transform -n "figure130" -p "|crowd|row6";
	rename -uid "9DC49C1A-BD64-7E0C-F176-683876B0CA43";
	setAttr ".t" -type "double3" -5.716 0 2.16 ;
	setAttr ".r" -type "double3" 0 128.53 0 ;
	setAttr ".s" -type "double3" 0.99 0.99 0.99 ;
createNode transform -n "figure131" -p "|crowd|row6";
	rename -uid "67D57D0E-C7F9-7C44-0143-D168BFE51C1A";
	setAttr ".t" -type "double3" -5.259 0 2.594 ;
	setAttr ".r" -type "double3" 0 151.83 0 ;
	setAttr ".s" -type "double3" 0.966 0.966 0.966 ;
createNode transform -n "figure132" -p "|crowd|row6";
	rename -uid "32522A0B-DE73-F10B-E606-7F31D2078635";
	setAttr ".t" -type "double3" -4.741 0 2.954 ;
	setAttr ".r" -type "double3" 0 146.22 0 ;
	setAttr ".s" -type "double3" 0.904 0.904 0.904 ;
createNode transform -n "figure133" -p "|crowd|row6";
	rename -uid "E3A1815B-607A-A081-3A09-886E7C28E07D";
	setAttr ".t" -type "double3" -4.237 0 3.339 ;
	setAttr ".r" -type "double3" 0 145 0 ;
	setAttr ".s" -type "double3" 0.979 0.979 0.979 ;
createNode transform -n "figure134" -p "|crowd|row6";
	rename -uid "9CE5F1A2-15D6-B054-2207-D007836E5F6D";
	setAttr ".t" -type "double3" -3.691 0 3.665 ;
	setAttr ".r" -type "double3" 0 158.98 0 ;
	setAttr ".s" -type "double3" 0.982 0.982 0.982 ;
createNode transform -n "figure135" -p "|crowd|row6";
	rename -uid "BD4DD5BD-5883-A4C9-C27C-B958FAF129A9";
	setAttr ".t" -type "double3" -3.074 0 3.833 ;
	setAttr ".r" -type "double3" 0 145.75 0 ;
	setAttr ".s" -type "double3" 1.031 1.031 1.031 ;
createNode transform -n "figure136" -p "|crowd|row6";
	rename -uid "67787448-121F-C0F7-A6A8-7342C229C76D";
	setAttr ".t" -type "double3" -2.472 0 4.014 ;
	setAttr ".r" -type "double3" 0 156.6 0 ;
	setAttr ".s" -type "double3" 0.913 0.913 0.913 ;
createNode transform -n "figure137" -p "|crowd|row6";
	rename -uid "68D8E2AB-628E-CFAA-A50A-68CD090FCC21";
	setAttr ".t" -type "double3" -1.889 0 4.277 ;
	setAttr ".r" -type "double3" 0 168.23 0 ;
	setAttr ".s" -type "double3" 0.952 0.952 0.952 ;
createNode transform -n "figure138" -p "|crowd|row6";
	rename -uid "AB7704E6-39E9-2821-6B47-7AAE3A96CCDC";
	setAttr ".t" -type "double3" -1.244 0 4.251 ;
	setAttr ".r" -type "double3" 0 158.53 0 ;
	setAttr ".s" -type "double3" 1.08 1.08 1.08 ;
createNode transform -n "figure139" -p "|crowd|row6";
	rename -uid "B77F756A-7CF3-A17D-A891-CCCE60C160E4";
	setAttr ".t" -type "double3" -0.637 0 4.504 ;
	setAttr ".r" -type "double3" 0 166.83 0 ;
	setAttr ".s" -type "double3" 1.056 1.056 1.056 ;
createNode transform -n "figure140" -p "|crowd|row6";
	rename -uid "11EAB735-3DDA-89E9-7064-FAA1565EA9A3";
	setAttr ".t" -type "double3" 0 0 4.356 ;
	setAttr ".r" -type "double3" 0 180.32 0 ;
	setAttr ".s" -type "double3" 1.09 1.09 1.09 ;
createNode transform -n "figure141" -p "|crowd|row6";
	rename -uid "2A29B21A-D6B1-1382-D0AD-41E1EED8D7E9";
	setAttr ".t" -type "double3" 0.638 0 4.51 ;
	setAttr ".r" -type "double3" 0 174.22 0 ;
	setAttr ".s" -type "double3" 1.099 1.099 1.099 ;
createNode transform -n "figure142" -p "|crowd|row6";
	rename -uid "7393822E-3205-7A44-85AB-4172B4E12D2D";
	setAttr ".t" -type "double3" 1.256 0 4.334 ;
	setAttr ".r" -type "double3" 0 202.45 0 ;
	setAttr ".s" -type "double3" 0.95 0.95 0.95 ;
createNode transform -n "figure143" -p "|crowd|row6";
	rename -uid "F58965C3-563B-4EE3-1A09-B6D75DF9FBAC";
	setAttr ".t" -type "double3" 1.885 0 4.258 ;
	setAttr ".r" -type "double3" 0 193.54 0 ;
	setAttr ".s" -type "double3" 1.096 1.096 1.096 ;
createNode transform -n "figure144" -p "|crowd|row6";
	rename -uid "6FA737CA-9E22-C6E5-3745-2E47CB1E5183";
	setAttr ".t" -type "double3" 2.482 0 4.046 ;
	setAttr ".r" -type "double3" 0 192.16 0 ;
	setAttr ".s" -type "double3" 0.958 0.958 0.958 ;
createNode transform -n "figure145" -p "|crowd|row6";
	rename -uid "612512DB-6566-B784-79FA-4D645E6730E3";
	setAttr ".t" -type "double3" 3.08 0 3.847 ;
	setAttr ".r" -type "double3" 0 198.9 0 ;
	setAttr ".s" -type "double3" 1.068 1.068 1.068 ;
createNode transform -n "figure146" -p "|crowd|row6";
	rename -uid "18296DC9-0ACC-9EFF-89CB-62B4C0831335";
	setAttr ".t" -type "double3" 3.652 0 3.583 ;
	setAttr ".r" -type "double3" 0 197.15 0 ;
	setAttr ".s" -type "double3" 0.995 0.995 0.995 ;
createNode transform -n "figure147" -p "|crowd|row6";
	rename -uid "71C731E9-4CDC-9FD0-B6DF-EF61BDAC66A9";
	setAttr ".t" -type "double3" 4.265 0 3.387 ;
	setAttr ".r" -type "double3" 0 201.51 0 ;
	setAttr ".s" -type "double3" 1.005 1.005 1.005 ;
createNode transform -n "figure148" -p "|crowd|row6";
	rename -uid "007167BE-E359-686D-42B4-E6C6A7BBB460";
	setAttr ".t" -type "double3" 4.801 0 3.042 ;
	setAttr ".r" -type "double3" 0 201.62 0 ;
	setAttr ".s" -type "double3" 1.002 1.002 1.002 ;
createNode transform -n "figure149" -p "|crowd|row6";
	rename -uid "3A99A1D2-F6B6-1D32-CE48-BEA76B449AF6";
	setAttr ".t" -type "double3" 5.331 0 2.685 ;
	setAttr ".r" -type "double3" 0 205.97 0 ;
	setAttr ".s" -type "double3" 0.933 0.933 0.933 ;
createNode transform -n "figure150" -p "|crowd|row6";
	rename -uid "2BA563E6-916D-F50B-84B8-9CCC1FD0A372";
	setAttr ".t" -type "double3" 5.774 0 2.223 ;
	setAttr ".r" -type "double3" 0 216.83 0 ;
	setAttr ".s" -type "double3" 0.976 0.976 0.976 ;
createNode transform -n "figure151" -p "|crowd|row6";
	rename -uid "E6A56A2D-1421-25C8-49AB-EC73D73B5063";
	setAttr ".t" -type "double3" 6.215 0 1.767 ;
	setAttr ".r" -type "double3" 0 231.12 0 ;
	setAttr ".s" -type "double3" 1.008 1.008 1.008 ;
createNode transform -n "figure152" -p "|crowd|row6";
	rename -uid "DD3F729C-C627-74BE-D08F-F498848CEE66";
	setAttr ".t" -type "double3" 6.66 0 1.311 ;
	setAttr ".r" -type "double3" 0 241.4 0 ;
	setAttr ".s" -type "double3" 1.097 1.097 1.097 ;
createNode transform -n "figure153" -p "|crowd|row6";
	rename -uid "D6946289-9622-016D-0974-5657992039D9";
	setAttr ".t" -type "double3" 6.903 0 0.707 ;
	setAttr ".r" -type "double3" 0 223.23 0 ;
	setAttr ".s" -type "double3" 1.017 1.017 1.017 ;
createNode transform -n "figure154" -p "|crowd|row6";
	rename -uid "0A87266A-C985-012B-A6A4-4D6B5274C785";
	setAttr ".t" -type "double3" 7.419 0 0.283 ;
	setAttr ".r" -type "double3" 0 232.32 0 ;
	setAttr ".s" -type "double3" 1.083 1.083 1.083 ;
createNode transform -n "figure155" -p "|crowd|row6";
	rename -uid "34E84CAF-6BA6-3EFC-81F4-9DB88A6B771B";
	setAttr ".t" -type "double3" 7.616 0 -0.332 ;
	setAttr ".r" -type "double3" 0 232.6 0 ;
	setAttr ".s" -type "double3" 1.066 1.066 1.066 ;
createNode transform -n "figure156" -p "|crowd|row6";
	rename -uid "89B13C42-97DB-F5A4-76CA-EEDAF1D109F8";
	setAttr ".t" -type "double3" 7.916 0 -0.893 ;
	setAttr ".r" -type "double3" 0 242.58 0 ;
	setAttr ".s" -type "double3" 0.98 0.98 0.98 ;
createNode transform -n "figure157" -p "|crowd|row6";
	rename -uid "B0492EED-BD29-8B03-C578-55313F476039";
	setAttr ".t" -type "double3" 8.126 0 -1.493 ;
	setAttr ".r" -type "double3" 0 253.68 0 ;
	setAttr ".s" -type "double3" 1.067 1.067 1.067 ;
createNode transform -n "row7" -p "crowd";
	rename -uid "B44BE855-1CA4-82FC-AAFD-D6807BFEFA01";
createNode transform -n "figure158" -p "|crowd|row7";
	rename -uid "A85B4393-6D36-92EF-1810-6FC94C40938F";
	setAttr ".t" -type "double3" -8.787 0 -1.327 ;
	setAttr ".r" -type "double3" 0 119.91 0 ;
	setAttr ".s" -type "double3" 1.074 1.074 1.074 ;
createNode transform -n "figure159" -p "|crowd|row7";
	rename -uid "59331727-939A-705C-5A33-FE0E3BB0B96F";
	setAttr ".t" -type "double3" -8.727 0 -0.69 ;
	setAttr ".r" -type "double3" 0 100.36 0 ;
	setAttr ".s" -type "double3" 0.909 0.909 0.909 ;
createNode transform -n "figure160" -p "|crowd|row7";
	rename -uid "F1D61F74-DCEC-FC7D-8B9E-44E964A55E82";
	setAttr ".t" -type "double3" -8.351 0 -0.174 ;
	setAttr ".r" -type "double3" 0 109.1 0 ;
	setAttr ".s" -type "double3" 1.008 1.008 1.008 ;
createNode transform -n "figure161" -p "|crowd|row7";
	rename -uid "FCD12292-CFC4-1A83-3406-74ACC7876880";
	setAttr ".t" -type "double3" -8.183 0 0.436 ;
	setAttr ".r" -type "double3" 0 105.31 0 ;
	setAttr ".s" -type "double3" 1.04 1.04 1.04 ;
createNode transform -n "figure162" -p "|crowd|row7";
	rename -uid "9CE71C9D-EF51-5215-6E3F-7554FAED17E0";
	setAttr ".t" -type "double3" -7.816 0 0.942 ;
	setAttr ".r" -type "double3" 0 125.37 0 ;
	setAttr ".s" -type "double3" 0.935 0.935 0.935 ;
createNode transform -n "figure163" -p "|crowd|row7";
	rename -uid "89F6DC5E-4EDD-6D7C-97A4-D1182DDF6F8B";
	setAttr ".t" -type "double3" -7.452 0 1.445 ;
	setAttr ".r" -type "double3" 0 113.13 0 ;
	setAttr ".s" -type "double3" 1.085 1.085 1.085 ;
createNode transform -n "figure164" -p "|crowd|row7";
	rename -uid "9695D52F-291F-64C8-8443-11A78F1EB934";
	setAttr ".t" -type "double3" -7.2 0 2.041 ;
	setAttr ".r" -type "double3" 0 133.02 0 ;
	setAttr ".s" -type "double3" 0.909 0.909 0.909 ;
createNode transform -n "figure165" -p "|crowd|row7";
	rename -uid "44E35B3A-7688-D8D1-BDF1-8BF6D5E71444";
	setAttr ".t" -type "double3" -6.774 0 2.506 ;
	setAttr ".r" -type "double3" 0 122.95 0 ;
	setAttr ".s" -type "double3" 0.921 0.921 0.921 ;
createNode transform -n "figure166" -p "|crowd|row7";
	rename -uid "4D7FEBFB-3477-B509-CBB5-00C4BD3E714E";
	setAttr ".t" -type "double3" -6.267 0 2.885 ;
	setAttr ".r" -type "double3" 0 143.09 0 ;
	setAttr ".s" -type "double3" 0.943 0.943 0.943 ;
createNode transform -n "figure167" -p "|crowd|row7";
	rename -uid "0F4B0805-29E3-8D6C-4D91-75385AC1AB80";
	setAttr ".t" -type "double3" -5.805 0 3.308 ;
	setAttr ".r" -type "double3" 0 152.86 0 ;
	setAttr ".s" -type "double3" 1.022 1.022 1.022 ;
createNode transform -n "figure168" -p "|crowd|row7";
	rename -uid "A973C53E-5A29-C7AE-5737-42051810AC34";
	setAttr ".t" -type "double3" -5.297 0 3.674 ;
	setAttr ".r" -type "double3" 0 152.7 0 ;
	setAttr ".s" -type "double3" 1.002 1.002 1.002 ;
createNode transform -n "figure169" -p "|crowd|row7";
	rename -uid "5644623B-AFD7-D61E-C110-EA103D68794A";
	setAttr ".t" -type "double3" -4.802 0 4.065 ;
	setAttr ".r" -type "double3" 0 161.5 0 ;
	setAttr ".s" -type "double3" 0.935 0.935 0.935 ;
createNode transform -n "figure170" -p "|crowd|row7";
	rename -uid "EB8F4A45-7628-C17F-CBFA-8171F2587254";
	setAttr ".t" -type "double3" -4.159 0 4.19 ;
	setAttr ".r" -type "double3" 0 162.67 0 ;
	setAttr ".s" -type "double3" 1.088 1.088 1.088 ;
createNode transform -n "figure171" -p "|crowd|row7";
	rename -uid "B7F22E18-BC8B-C4FA-BE49-F837F2D261DA";
	setAttr ".t" -type "double3" -3.621 0 4.499 ;
	setAttr ".r" -type "double3" 0 158.85 0 ;
	setAttr ".s" -type "double3" 1.02 1.02 1.02 ;
createNode transform -n "figure172" -p "|crowd|row7";
	rename -uid "1BB2AD41-6986-B8EE-CA15-62619BA21671";
	setAttr ".t" -type "double3" -3.052 0 4.748 ;
	setAttr ".r" -type "double3" 0 153.62 0 ;
	setAttr ".s" -type "double3" 0.912 0.912 0.912 ;
createNode transform -n "figure173" -p "|crowd|row7";
	rename -uid "11E71D2F-24CD-65BA-5512-A3C245D1ED5A";
	setAttr ".t" -type "double3" -2.486 0 5.036 ;
	setAttr ".r" -type "double3" 0 158.76 0 ;
	setAttr ".s" -type "double3" 0.999 0.999 0.999 ;
createNode transform -n "figure174" -p "|crowd|row7";
	rename -uid "28B0D127-2EE6-26A5-4AAE-9393C67029A4";
	setAttr ".t" -type "double3" -1.85 0 5.06 ;
	setAttr ".r" -type "double3" 0 157.97 0 ;
	setAttr ".s" -type "double3" 0.987 0.987 0.987 ;
createNode transform -n "figure175" -p "|crowd|row7";
	rename -uid "8E57D95C-4032-BED2-B282-CB0E283FDC9A";
	setAttr ".t" -type "double3" -1.249 0 5.249 ;
	setAttr ".r" -type "double3" 0 170.22 0 ;
	setAttr ".s" -type "double3" 1.036 1.036 1.036 ;
createNode transform -n "figure176" -p "|crowd|row7";
	rename -uid "A3E8CB50-3CAD-E502-B99E-34A6A6EA2DE8";
	setAttr ".t" -type "double3" -0.624 0 5.285 ;
	setAttr ".r" -type "double3" 0 187.86 0 ;
	setAttr ".s" -type "double3" 1.013 1.013 1.013 ;
createNode transform -n "figure177" -p "|crowd|row7";
	rename -uid "975DACB1-8153-AF3F-96D1-D4C37FD7A891";
	setAttr ".t" -type "double3" 0 0 5.29 ;
	setAttr ".r" -type "double3" 0 186.68 0 ;
	setAttr ".s" -type "double3" 1.067 1.067 1.067 ;
createNode transform -n "figure178" -p "|crowd|row7";
	rename -uid "6659EF50-9081-9517-CBF5-FF033F781B4D";
	setAttr ".t" -type "double3" 0.622 0 5.253 ;
	setAttr ".r" -type "double3" 0 176.11 0 ;
	setAttr ".s" -type "double3" 0.975 0.975 0.975 ;
createNode transform -n "figure179" -p "|crowd|row7";
	rename -uid "08ADB734-360C-520C-7F4F-3199C8AC400F";
	setAttr ".t" -type "double3" 1.236 0 5.152 ;
	setAttr ".r" -type "double3" 0 181.55 0 ;
	setAttr ".s" -type "double3" 1.057 1.057 1.057 ;
createNode transform -n "figure180" -p "|crowd|row7";
	rename -uid "FAE0B334-0DA0-D99C-1D04-C6B2EDE4B44B";
	setAttr ".t" -type "double3" 1.865 0 5.137 ;
	setAttr ".r" -type "double3" 0 179.4 0 ;
	setAttr ".s" -type "double3" 1.042 1.042 1.042 ;
createNode transform -n "figure181" -p "|crowd|row7";
	rename -uid "F35F602B-7ADA-87D5-AC4B-1DBA5FDABD47";
	setAttr ".t" -type "double3" 2.444 0 4.882 ;
	setAttr ".r" -type "double3" 0 203.85 0 ;
	setAttr ".s" -type "double3" 1.065 1.065 1.065 ;
createNode transform -n "figure182" -p "|crowd|row7";
	rename -uid "5D237142-586F-4FE5-269B-EDFBA3D0B95F";
	setAttr ".t" -type "double3" 3.046 0 4.732 ;
	setAttr ".r" -type "double3" 0 192.19 0 ;
	setAttr ".s" -type "double3" 1.056 1.056 1.056 ;
createNode transform -n "figure183" -p "|crowd|row7";
	rename -uid "DEDED813-77D5-3C20-589C-91C2CDC075AB";
	setAttr ".t" -type "double3" 3.642 0 4.549 ;
	setAttr ".r" -type "double3" 0 202.81 0 ;
	setAttr ".s" -type "double3" 1.081 1.081 1.081 ;
createNode transform -n "figure184" -p "|crowd|row7";
	rename -uid "AEA1B3F4-8DB6-706A-7F32-EE6A831F74A5";
	setAttr ".t" -type "double3" 4.219 0 4.308 ;
	setAttr ".r" -type "double3" 0 218.43 0 ;
	setAttr ".s" -type "double3" 1.017 1.017 1.017 ;
createNode transform -n "figure185" -p "|crowd|row7";
	rename -uid "4F665692-0901-037B-F6E9-1A527832BC77";
	setAttr ".t" -type "double3" 4.802 0 4.065 ;
	setAttr ".r" -type "double3" 0 205.35 0 ;
	setAttr ".s" -type "double3" 1.032 1.032 1.032 ;
createNode transform -n "figure186" -p "|crowd|row7";
	rename -uid "9676696F-295F-5510-3BEA-6046F68C354C";
	setAttr ".t" -type "double3" 5.287 0 3.66 ;
	setAttr ".r" -type "double3" 0 206.6 0 ;
	setAttr ".s" -type "double3" 1.053 1.053 1.053 ;
createNode transform -n "figure187" -p "|crowd|row7";
	rename -uid "8502CD2E-2BFE-0207-B774-687910B8BB01";
	setAttr ".t" -type "double3" 5.788 0 3.287 ;
	setAttr ".r" -type "double3" 0 205.48 0 ;
	setAttr ".s" -type "double3" 1.062 1.062 1.062 ;
createNode transform -n "figure188" -p "|crowd|row7";
	rename -uid "06119D18-3D80-32C8-435D-3D3DBF4B397D";
	setAttr ".t" -type "double3" 6.21 0 2.823 ;
	setAttr ".r" -type "double3" 0 220.31 0 ;
	setAttr ".s" -type "double3" 0.921 0.921 0.921 ;
createNode transform -n "figure189" -p "|crowd|row7";
	rename -uid "F56F5548-F5AE-5B3B-871A-31F31F5FDD85";
	setAttr ".t" -type "double3" 6.729 0 2.463 ;
	setAttr ".r" -type "double3" 0 229 0 ;
	setAttr ".s" -type "double3" 0.904 0.904 0.904 ;
createNode transform -n "figure190" -p "|crowd|row7";
	rename -uid "FB6E5667-8F5D-581C-B7A1-79BA415433C0";
	setAttr ".t" -type "double3" 7.099 0 1.957 ;
	setAttr ".r" -type "double3" 0 225.44 0 ;
	setAttr ".s" -type "double3" 0.949 0.949 0.949 ;
createNode transform -n "figure191" -p "|crowd|row7";
	rename -uid "CF0A785D-9E43-2000-6B40-61260F2237A9";
	setAttr ".t" -type "double3" 7.548 0 1.515 ;
	setAttr ".r" -type "double3" 0 244.61 0 ;
	setAttr ".s" -type "double3" 1.055 1.055 1.055 ;
createNode transform -n "figure192" -p "|crowd|row7";
	rename -uid "0524D94E-D394-5BA5-C560-75794C9AC6EA";
	setAttr ".t" -type "double3" 7.949 0 1.027 ;
	setAttr ".r" -type "double3" 0 237.53 0 ;
	setAttr ".s" -type "double3" 1.052 1.052 1.052 ;
createNode transform -n "figure193" -p "|crowd|row7";
	rename -uid "1F06C79A-4217-C1ED-D979-1F3B183C172B";
	setAttr ".t" -type "double3" 8.16 0 0.423 ;
	setAttr ".r" -type "double3" 0 247.27 0 ;
	setAttr ".s" -type "double3" 1.1 1.1 1.1 ;
createNode transform -n "figure194" -p "|crowd|row7";
	rename -uid "04F86A7D-B23D-475D-CCD4-A1FDD4B9C161";
	setAttr ".t" -type "double3" 8.537 0 -0.089 ;
	setAttr ".r" -type "double3" 0 237.79 0 ;
	setAttr ".s" -type "double3" 1.091 1.091 1.091 ;
createNode transform -n "figure195" -p "|crowd|row7";
	rename -uid "C472F1D6-6959-6A7A-0286-FD4847535FB1";
	setAttr ".t" -type "double3" 8.659 0 -0.716 ;
	setAttr ".r" -type "double3" 0 260.85 0 ;
	setAttr ".s" -type "double3" 0.939 0.939 0.939 ;
createNode transform -n "figure196" -p "|crowd|row7";
	rename -uid "6CA30427-5ED4-1F27-128E-53AEAFC0E603";
	setAttr ".t" -type "double3" 8.823 0 -1.316 ;
	setAttr ".r" -type "double3" 0 239.79 0 ;
	setAttr ".s" -type "double3" 1.057 1.057 1.057 ;
createNode transform -n "row8" -p "crowd";
	rename -uid "C7A8532D-4FF5-77F0-1DB8-85D24D84E3D0";
createNode transform -n "figure197" -p "|crowd|row8";
	rename -uid "E1D78F20-1F55-53A0-34C4-40C029960143";
	setAttr ".t" -type "double3" -9.774 0 -1.052 ;
	setAttr ".r" -type "double3" 0 120.51 0 ;
	setAttr ".s" -type "double3" 1.032 1.032 1.032 ;
createNode transform -n "figure198" -p "|crowd|row8";
	rename -uid "2D95A25D-21AB-760C-74F7-7BF38770112F";
	setAttr ".t" -type "double3" -9.448 0 -0.494 ;
	setAttr ".r" -type "double3" 0 108.05 0 ;
	setAttr ".s" -type "double3" 0.94 0.94 0.94 ;
createNode transform -n "figure199" -p "|crowd|row8";
	rename -uid "E32B5EC3-927A-969B-E54E-CD3B8ECDA619";
	setAttr ".t" -type "double3" -9.324 0 0.137 ;
	setAttr ".r" -type "double3" 0 100.91 0 ;
	setAttr ".s" -type "double3" 0.93 0.93 0.93 ;
createNode transform -n "figure200" -p "|crowd|row8";
	rename -uid "148A8E18-3880-BC5F-4B58-2A6489F49333";
	setAttr ".t" -type "double3" -9.107 0 0.741 ;
	setAttr ".r" -type "double3" 0 115.21 0 ;
	setAttr ".s" -type "double3" 1.099 1.099 1.099 ;
createNode transform -n "figure201" -p "|crowd|row8";
	rename -uid "9925BA77-4966-5F5C-9B8B-12F5B27308D4";
	setAttr ".t" -type "double3" -8.787 0 1.295 ;
	setAttr ".r" -type "double3" 0 126.96 0 ;
	setAttr ".s" -type "double3" 1.02 1.02 1.02 ;
createNode transform -n "figure202" -p "|crowd|row8";
	rename -uid "C329D958-D1DF-087A-CAC4-7C16812FC915";
	setAttr ".t" -type "double3" -8.322 0 1.75 ;
	setAttr ".r" -type "double3" 0 134.21 0 ;
	setAttr ".s" -type "double3" 1.032 1.032 1.032 ;
createNode transform -n "figure203" -p "|crowd|row8";
	rename -uid "63F3AFE5-FC18-6CEE-9A1B-7CAEBEEDFFE5";
	setAttr ".t" -type "double3" -7.926 0 2.241 ;
	setAttr ".r" -type "double3" 0 125.39 0 ;
	setAttr ".s" -type "double3" 0.943 0.943 0.943 ;
createNode transform -n "figure204" -p "|crowd|row8";
	rename -uid "5AC72A06-A262-99FE-62C4-6768F76AD286";
	setAttr ".t" -type "double3" -7.636 0 2.824 ;
	setAttr ".r" -type "double3" 0 144.16 0 ;
	setAttr ".s" -type "double3" 0.997 0.997 0.997 ;
createNode transform -n "figure205" -p "|crowd|row8";
	rename -uid "686AA579-4A69-4A6C-4AF8-262EEDF302EC";
	setAttr ".t" -type "double3" -7.153 0 3.243 ;
	setAttr ".r" -type "double3" 0 121.82 0 ;
	setAttr ".s" -type "double3" 0.937 0.937 0.937 ;
createNode transform -n "figure206" -p "|crowd|row8";
	rename -uid "BC4EEE3B-9FE2-E157-3667-6DE3149A54BC";
	setAttr ".t" -type "double3" -6.735 0 3.728 ;
	setAttr ".r" -type "double3" 0 126.38 0 ;
	setAttr ".s" -type "double3" 1.068 1.068 1.068 ;
createNode transform -n "figure207" -p "|crowd|row8";
	rename -uid "3FA4E30D-5C15-E266-43A8-9692C42628C6";
	setAttr ".t" -type "double3" -6.213 0 4.097 ;
	setAttr ".r" -type "double3" 0 133.68 0 ;
	setAttr ".s" -type "double3" 1.069 1.069 1.069 ;
createNode transform -n "figure208" -p "|crowd|row8";
	rename -uid "0D08F747-EECF-0835-B5C8-583381F9ECB0";
	setAttr ".t" -type "double3" -5.638 0 4.38 ;
	setAttr ".r" -type "double3" 0 158.47 0 ;
	setAttr ".s" -type "double3" 0.961 0.961 0.961 ;
createNode transform -n "figure209" -p "|crowd|row8";
	rename -uid "B79CDE31-BD1C-E8DA-6008-2D1DB2FC1884";
	setAttr ".t" -type "double3" -5.131 0 4.761 ;
	setAttr ".r" -type "double3" 0 137.25 0 ;
	setAttr ".s" -type "double3" 0.98 0.98 0.98 ;
createNode transform -n "figure210" -p "|crowd|row8";
	rename -uid "C61FBC61-CCB0-EB28-0624-EE42BF6B964B";
	setAttr ".t" -type "double3" -4.564 0 5.04 ;
	setAttr ".r" -type "double3" 0 162.76 0 ;
	setAttr ".s" -type "double3" 0.912 0.912 0.912 ;
createNode transform -n "figure211" -p "|crowd|row8";
	rename -uid "F6B164D9-6D1C-DA6C-C2BD-E577DEF33820";
	setAttr ".t" -type "double3" -3.989 0 5.3 ;
	setAttr ".r" -type "double3" 0 147 0 ;
	setAttr ".s" -type "double3" 0.99 0.99 0.99 ;
createNode transform -n "figure212" -p "|crowd|row8";
	rename -uid "5CB8869A-C512-CCA3-0DA7-13172BDC97A0";
	setAttr ".t" -type "double3" -3.392 0 5.503 ;
	setAttr ".r" -type "double3" 0 156.03 0 ;
	setAttr ".s" -type "double3" 0.989 0.989 0.989 ;
createNode transform -n "figure213" -p "|crowd|row8";
	rename -uid "60A6F30E-55CE-B9D4-369A-DC4A90B2ACF7";
	setAttr ".t" -type "double3" -2.806 0 5.738 ;
	setAttr ".r" -type "double3" 0 156.68 0 ;
	setAttr ".s" -type "double3" 0.914 0.914 0.914 ;
createNode transform -n "figure214" -p "|crowd|row8";
	rename -uid "F235269A-83F5-8368-6095-2B0F5F224AFD";
	setAttr ".t" -type "double3" -2.204 0 5.94 ;
	setAttr ".r" -type "double3" 0 166.07 0 ;
	setAttr ".s" -type "double3" 1.016 1.016 1.016 ;
createNode transform -n "figure215" -p "|crowd|row8";
	rename -uid "D783FA9E-15E2-DAA4-C310-0512E01ECA37";
	setAttr ".t" -type "double3" -1.577 0 6.039 ;
	setAttr ".r" -type "double3" 0 159.82 0 ;
	setAttr ".s" -type "double3" 0.929 0.929 0.929 ;
createNode transform -n "figure216" -p "|crowd|row8";
	rename -uid "555C2A1E-D6E6-189E-2529-24AE5DCC6F53";
	setAttr ".t" -type "double3" -0.937 0 5.997 ;
	setAttr ".r" -type "double3" 0 163.09 0 ;
	setAttr ".s" -type "double3" 1.033 1.033 1.033 ;
createNode transform -n "figure217" -p "|crowd|row8";
	rename -uid "31EEB917-5FE6-6A95-C43E-BA9707B0D450";
	setAttr ".t" -type "double3" -0.315 0 6.094 ;
	setAttr ".r" -type "double3" 0 189.26 0 ;
	setAttr ".s" -type "double3" 1.03 1.03 1.03 ;
createNode transform -n "figure218" -p "|crowd|row8";
	rename -uid "441C968C-5761-262C-B5E1-CA21C42F821D";
	setAttr ".t" -type "double3" 0.318 0 6.195 ;
	setAttr ".r" -type "double3" 0 193 0 ;
	setAttr ".s" -type "double3" 0.999 0.999 0.999 ;
createNode transform -n "figure219" -p "|crowd|row8";
	rename -uid "226A2C76-564C-6F6F-FBD3-725B6B5453E6";
	setAttr ".t" -type "double3" 0.942 0 6.042 ;
	setAttr ".r" -type "double3" 0 198.23 0 ;
	setAttr ".s" -type "double3" 1.061 1.061 1.061 ;
createNode transform -n "figure220" -p "|crowd|row8";
	rename -uid "D51EDCCD-F032-6E9C-1013-98603306B54C";
	setAttr ".t" -type "double3" 1.581 0 6.064 ;
	setAttr ".r" -type "double3" 0 192.72 0 ;
	setAttr ".s" -type "double3" 1.088 1.088 1.088 ;
createNode transform -n "figure221" -p "|crowd|row8";
	rename -uid "AB7EAD18-2E9B-781F-D75B-5E10C5E4BD57";
	setAttr ".t" -type "double3" 2.206 0 5.952 ;
	setAttr ".r" -type "double3" 0 193.89 0 ;
	setAttr ".s" -type "double3" 1.084 1.084 1.084 ;
createNode transform -n "figure222" -p "|crowd|row8";
	rename -uid "1171AE98-64F3-EEB8-CAC5-01FC6A026C28";
	setAttr ".t" -type "double3" 2.818 0 5.783 ;
	setAttr ".r" -type "double3" 0 201.61 0 ;
	setAttr ".s" -type "double3" 1.094 1.094 1.094 ;
createNode transform -n "figure223" -p "|crowd|row8";
	rename -uid "1920DB9C-146E-0DF4-7C0B-32B3B9FB048D";
	setAttr ".t" -type "double3" 3.441 0 5.64 ;
	setAttr ".r" -type "double3" 0 196.46 0 ;
	setAttr ".s" -type "double3" 1.056 1.056 1.056 ;
createNode transform -n "figure224" -p "|crowd|row8";
	rename -uid "91BB5786-B4E8-2FA7-9796-B3F9EA0F99F1";
	setAttr ".t" -type "double3" 3.973 0 5.262 ;
	setAttr ".r" -type "double3" 0 203.78 0 ;
	setAttr ".s" -type "double3" 0.936 0.936 0.936 ;
createNode transform -n "figure225" -p "|crowd|row8";
	rename -uid "E793B17C-0213-5F11-2DF3-20311F933D80";
	setAttr ".t" -type "double3" 4.542 0 4.998 ;
	setAttr ".r" -type "double3" 0 195.63 0 ;
	setAttr ".s" -type "double3" 0.937 0.937 0.937 ;
createNode transform -n "figure226" -p "|crowd|row8";
	rename -uid "0C295FC8-BD6C-6752-E458-8C0CD270F85F";
	setAttr ".t" -type "double3" 5.097 0 4.702 ;
	setAttr ".r" -type "double3" 0 201.34 0 ;
	setAttr ".s" -type "double3" 1.074 1.074 1.074 ;
createNode transform -n "figure227" -p "|crowd|row8";
	rename -uid "F3E46C94-18BA-FF5F-7787-EF8D7B8E0234";
	setAttr ".t" -type "double3" 5.62 0 4.354 ;
	setAttr ".r" -type "double3" 0 208.15 0 ;
	setAttr ".s" -type "double3" 1.076 1.076 1.076 ;
createNode transform -n "figure228" -p "|crowd|row8";
	rename -uid "BE58147B-E566-23BB-58D5-F0EFB8C31384";
	setAttr ".t" -type "double3" 6.135 0 3.996 ;
	setAttr ".r" -type "double3" 0 220.68 0 ;
	setAttr ".s" -type "double3" 0.976 0.976 0.976 ;
createNode transform -n "figure229" -p "|crowd|row8";
	rename -uid "B5118582-F604-A438-69D5-869665518CC7";
	setAttr ".t" -type "double3" 6.741 0 3.735 ;
	setAttr ".r" -type "double3" 0 212.14 0 ;
	setAttr ".s" -type "double3" 0.957 0.957 0.957 ;
createNode transform -n "figure230" -p "|crowd|row8";
	rename -uid "F0743A57-B07C-4572-4016-3F6FD639809D";
	setAttr ".t" -type "double3" 7.144 0 3.234 ;
	setAttr ".r" -type "double3" 0 221.25 0 ;
	setAttr ".s" -type "double3" 1.006 1.006 1.006 ;
createNode transform -n "figure231" -p "|crowd|row8";
	rename -uid "75000C34-936C-2572-0481-081355AD9EE5";
	setAttr ".t" -type "double3" 7.559 0 2.755 ;
	setAttr ".r" -type "double3" 0 239 0 ;
	setAttr ".s" -type "double3" 0.963 0.963 0.963 ;
createNode transform -n "figure232" -p "|crowd|row8";
	rename -uid "7C215514-2B2D-6AC9-B494-2B9283309BDE";
	setAttr ".t" -type "double3" 7.962 0 2.269 ;
	setAttr ".r" -type "double3" 0 234.55 0 ;
	setAttr ".s" -type "double3" 0.942 0.942 0.942 ;
createNode transform -n "figure233" -p "|crowd|row8";
	rename -uid "3636A89C-898E-B9DE-7528-A02A1C7CCA56";
	setAttr ".t" -type "double3" 8.39 0 1.797 ;
	setAttr ".r" -type "double3" 0 241.25 0 ;
	setAttr ".s" -type "double3" 1.079 1.079 1.079 ;
createNode transform -n "figure234" -p "|crowd|row8";
	rename -uid "52D6226F-E1F9-7A61-5B58-C6D30CB3AACB";
	setAttr ".t" -type "double3" 8.593 0 1.178 ;
	setAttr ".r" -type "double3" 0 225.78 0 ;
	setAttr ".s" -type "double3" 1.064 1.064 1.064 ;
createNode transform -n "figure235" -p "|crowd|row8";
	rename -uid "7CCA84FE-D554-4616-F6A2-8BBED5735918";
	setAttr ".t" -type "double3" 9.004 0 0.687 ;
	setAttr ".r" -type "double3" 0 239.94 0 ;
	setAttr ".s" -type "double3" 0.981 0.981 0.981 ;
createNode transform -n "figure236" -p "|crowd|row8";
	rename -uid "4B9821A4-63DD-52E6-5149-9658D4663B13";
	setAttr ".t" -type "double3" 9.355 0 0.151 ;
	setAttr ".r" -type "double3" 0 248.45 0 ;
createNode transform -n "figure237" -p "|crowd|row8";
	rename -uid "26B4988F-3429-DB61-164D-64D5E16356FD";
	setAttr ".t" -type "double3" 9.548 0 -0.457 ;
	setAttr ".r" -type "double3" 0 236.14 0 ;
	setAttr ".s" -type "double3" 0.985 0.985 0.985 ;
createNode transform -n "figure238" -p "|crowd|row8";
	rename -uid "B146DF4A-BF7D-3A86-A805-9AD1435EE64E";
	setAttr ".t" -type "double3" 9.657 0 -1.087 ;
	setAttr ".r" -type "double3" 0 266.18 0 ;
	setAttr ".s" -type "double3" 1.094 1.094 1.094 ;
createNode transform -n "row9" -p "crowd";
	rename -uid "5478FDAE-6201-098B-F600-27CB3A356243";
createNode transform -n "figure239" -p "|crowd|row9";
	rename -uid "BA33454B-999B-EB73-B97B-BF671732A18F";
	setAttr ".t" -type "double3" -10.441 0 -0.881 ;
	setAttr ".r" -type "double3" 0 116.61 0 ;
	setAttr ".s" -type "double3" 0.916 0.916 0.916 ;
createNode transform -n "figure240" -p "|crowd|row9";
	rename -uid "CB2215DD-F95A-E212-7989-F14D7CC957CC";
	setAttr ".t" -type "double3" -10.284 0 -0.279 ;
	setAttr ".r" -type "double3" 0 108.14 0 ;
	setAttr ".s" -type "double3" 1.057 1.057 1.057 ;
createNode transform -n "figure241" -p "|crowd|row9";
	rename -uid "F71E7DA6-6E7B-4175-010F-D94D9A55E479";
	setAttr ".t" -type "double3" -10.119 0 0.327 ;
	setAttr ".r" -type "double3" 0 104.11 0 ;
	setAttr ".s" -type "double3" 0.947 0.947 0.947 ;
createNode transform -n "figure242" -p "|crowd|row9";
	rename -uid "3FE2D31F-B61B-036E-89C9-8C6B5134E3B3";
	setAttr ".t" -type "double3" -9.791 0 0.863 ;
	setAttr ".r" -type "double3" 0 104.71 0 ;
	setAttr ".s" -type "double3" 0.955 0.955 0.955 ;
createNode transform -n "figure243" -p "|crowd|row9";
	rename -uid "C2F9F25A-7590-6C16-78FF-2EA2149F0E9A";
	setAttr ".t" -type "double3" -9.612 0 1.477 ;
	setAttr ".r" -type "double3" 0 117.89 0 ;
	setAttr ".s" -type "double3" 1.018 1.018 1.018 ;
createNode transform -n "figure244" -p "|crowd|row9";
	rename -uid "28BD3EAA-0D0B-FB96-181D-A4AF3B4C6E6E";
	setAttr ".t" -type "double3" -9.311 0 2.031 ;
	setAttr ".r" -type "double3" 0 123.15 0 ;
	setAttr ".s" -type "double3" 1.041 1.041 1.041 ;
createNode transform -n "figure245" -p "|crowd|row9";
	rename -uid "48939442-72D2-659B-6C56-F1FDD0E46BE7";
	setAttr ".t" -type "double3" -8.786 0 2.429 ;
	setAttr ".r" -type "double3" 0 122.89 0 ;
	setAttr ".s" -type "double3" 0.936 0.936 0.936 ;
createNode transform -n "figure246" -p "|crowd|row9";
	rename -uid "7E8A8AC8-EA00-127D-5C5A-AC8DE2D47563";
	setAttr ".t" -type "double3" -8.471 0 2.972 ;
	setAttr ".r" -type "double3" 0 135.52 0 ;
	setAttr ".s" -type "double3" 0.997 0.997 0.997 ;
createNode transform -n "figure247" -p "|crowd|row9";
	rename -uid "DC6AD32D-D246-4679-2044-0832A4EA5E1A";
	setAttr ".t" -type "double3" -8.097 0 3.476 ;
	setAttr ".r" -type "double3" 0 144.57 0 ;
createNode transform -n "figure248" -p "|crowd|row9";
	rename -uid "E57E1F9B-FCEA-F56E-2036-169CFBF21604";
	setAttr ".t" -type "double3" -7.596 0 3.86 ;
	setAttr ".r" -type "double3" 0 132.96 0 ;
	setAttr ".s" -type "double3" 0.954 0.954 0.954 ;
createNode transform -n "figure249" -p "|crowd|row9";
	rename -uid "074AB7F7-4A8E-F561-5303-101835A575CF";
	setAttr ".t" -type "double3" -7.184 0 4.335 ;
	setAttr ".r" -type "double3" 0 148.83 0 ;
	setAttr ".s" -type "double3" 1.019 1.019 1.019 ;
createNode transform -n "figure250" -p "|crowd|row9";
	rename -uid "6BDB7492-B089-E780-A59A-0FDF12FD2C67";
	setAttr ".t" -type "double3" -6.769 0 4.821 ;
	setAttr ".r" -type "double3" 0 137.08 0 ;
	setAttr ".s" -type "double3" 0.99 0.99 0.99 ;
createNode transform -n "figure251" -p "|crowd|row9";
	rename -uid "B67120C8-D4AA-C8EE-5D52-4C415BD652FC";
	setAttr ".t" -type "double3" -6.244 0 5.174 ;
	setAttr ".r" -type "double3" 0 151.04 0 ;
	setAttr ".s" -type "double3" 0.941 0.941 0.941 ;
createNode transform -n "figure252" -p "|crowd|row9";
	rename -uid "E79072D4-6754-8904-4284-FF8ABA820750";
	setAttr ".t" -type "double3" -5.647 0 5.407 ;
	setAttr ".r" -type "double3" 0 156.93 0 ;
	setAttr ".s" -type "double3" 0.923 0.923 0.923 ;
createNode transform -n "figure253" -p "|crowd|row9";
	rename -uid "BED12468-85D1-0FEB-128C-A5B8CED17673";
	setAttr ".t" -type "double3" -5.132 0 5.768 ;
	setAttr ".r" -type "double3" 0 150.56 0 ;
	setAttr ".s" -type "double3" 1.004 1.004 1.004 ;
createNode transform -n "figure254" -p "|crowd|row9";
	rename -uid "5644C3DB-E50D-E5F8-C75B-2CE6D95D3580";
	setAttr ".t" -type "double3" -4.539 0 5.981 ;
	setAttr ".r" -type "double3" 0 145.94 0 ;
	setAttr ".s" -type "double3" 1.084 1.084 1.084 ;
createNode transform -n "figure255" -p "|crowd|row9";
	rename -uid "372ED668-BD15-9CC7-B992-13DF48381CC5";
	setAttr ".t" -type "double3" -3.934 0 6.146 ;
	setAttr ".r" -type "double3" 0 161.35 0 ;
	setAttr ".s" -type "double3" 0.904 0.904 0.904 ;
createNode transform -n "figure256" -p "|crowd|row9";
	rename -uid "D861DABA-EA58-67CC-8075-FF7E443EE3A5";
	setAttr ".t" -type "double3" -3.356 0 6.368 ;
	setAttr ".r" -type "double3" 0 161.5 0 ;
	setAttr ".s" -type "double3" 1.084 1.084 1.084 ;
createNode transform -n "figure257" -p "|crowd|row9";
	rename -uid "72C7B7CC-68C0-15EA-32C7-21BB2E64AED5";
	setAttr ".t" -type "double3" -2.774 0 6.594 ;
	setAttr ".r" -type "double3" 0 153.02 0 ;
	setAttr ".s" -type "double3" 0.991 0.991 0.991 ;
createNode transform -n "figure258" -p "|crowd|row9";
	rename -uid "2AD44BF3-D960-ED83-EBDA-14BEE2572B1B";
	setAttr ".t" -type "double3" -2.163 0 6.713 ;
	setAttr ".r" -type "double3" 0 174.36 0 ;
	setAttr ".s" -type "double3" 0.936 0.936 0.936 ;
createNode transform -n "figure259" -p "|crowd|row9";
	rename -uid "DC3B38F3-028A-BF3A-311F-A1C7E822781E";
	setAttr ".t" -type "double3" -1.564 0 6.917 ;
	setAttr ".r" -type "double3" 0 171.1 0 ;
	setAttr ".s" -type "double3" 1.091 1.091 1.091 ;
createNode transform -n "figure260" -p "|crowd|row9";
	rename -uid "F95579D6-F057-84F4-EED0-827447485B19";
	setAttr ".t" -type "double3" -0.946 0 7.049 ;
	setAttr ".r" -type "double3" 0 168.11 0 ;
	setAttr ".s" -type "double3" 1.047 1.047 1.047 ;
createNode transform -n "figure261" -p "|crowd|row9";
	rename -uid "B45592A1-34F1-79CB-4C0A-84DCB3F28272";
	setAttr ".t" -type "double3" -0.314 0 7.047 ;
	setAttr ".r" -type "double3" 0 181.87 0 ;
	setAttr ".s" -type "double3" 1.094 1.094 1.094 ;
createNode transform -n "figure262" -p "|crowd|row9";
	rename -uid "37E9AD61-A187-CD69-4DF9-83F89AF6A343";
	setAttr ".t" -type "double3" 0.316 0 7.11 ;
	setAttr ".r" -type "double3" 0 178.96 0 ;
	setAttr ".s" -type "double3" 1.065 1.065 1.065 ;
createNode transform -n "figure263" -p "|crowd|row9";
	rename -uid "F0F58E77-6F36-8612-425D-F3EB18EC26BE";
	setAttr ".t" -type "double3" 0.938 0 6.96 ;
	setAttr ".r" -type "double3" 0 183.24 0 ;
	setAttr ".s" -type "double3" 1.001 1.001 1.001 ;
createNode transform -n "figure264" -p "|crowd|row9";
	rename -uid "0061B462-7B7D-C2E3-C8B0-263C1A446ED4";
	setAttr ".t" -type "double3" 1.57 0 6.957 ;
	setAttr ".r" -type "double3" 0 192.19 0 ;
	setAttr ".s" -type "double3" 1.069 1.069 1.069 ;
createNode transform -n "figure265" -p "|crowd|row9";
	rename -uid "0625B0FB-45BB-67DE-54CD-4CC966C1AA3A";
	setAttr ".t" -type "double3" 2.163 0 6.713 ;
	setAttr ".r" -type "double3" 0 182.39 0 ;
	setAttr ".s" -type "double3" 0.909 0.909 0.909 ;
createNode transform -n "figure266" -p "|crowd|row9";
	rename -uid "EF34B897-DF89-E5B4-BCD3-B93CF7B66F24";
	setAttr ".t" -type "double3" 2.786 0 6.641 ;
	setAttr ".r" -type "double3" 0 193.76 0 ;
	setAttr ".s" -type "double3" 0.955 0.955 0.955 ;
createNode transform -n "figure267" -p "|crowd|row9";
	rename -uid "75B49EAF-54CB-CEDD-9C7A-13F69DB7FB63";
	setAttr ".t" -type "double3" 3.395 0 6.49 ;
	setAttr ".r" -type "double3" 0 199.01 0 ;
	setAttr ".s" -type "double3" 1.061 1.061 1.061 ;
createNode transform -n "figure268" -p "|crowd|row9";
	rename -uid "91183B4C-9DB3-9D76-2FFF-EEEBA077A0F2";
	setAttr ".t" -type "double3" 3.995 0 6.303 ;
	setAttr ".r" -type "double3" 0 201.24 0 ;
	setAttr ".s" -type "double3" 1.05 1.05 1.05 ;
createNode transform -n "figure269" -p "|crowd|row9";
	rename -uid "29ECC819-EC16-CCFE-054B-D80A0A97477F";
	setAttr ".t" -type "double3" 4.572 0 6.052 ;
	setAttr ".r" -type "double3" 0 217.52 0 ;
	setAttr ".s" -type "double3" 0.938 0.938 0.938 ;
createNode transform -n "figure270" -p "|crowd|row9";
	rename -uid "108914FA-2918-2BF1-7F2B-7DFEBE5EEBCA";
	setAttr ".t" -type "double3" 5.146 0 5.794 ;
	setAttr ".r" -type "double3" 0 209.37 0 ;
	setAttr ".s" -type "double3" 1.004 1.004 1.004 ;
createNode transform -n "figure271" -p "|crowd|row9";
	rename -uid "AB5DA973-CCB6-4E82-9D78-D158CDB91767";
	setAttr ".t" -type "double3" 5.606 0 5.338 ;
	setAttr ".r" -type "double3" 0 202.93 0 ;
	setAttr ".s" -type "double3" 1.089 1.089 1.089 ;
createNode transform -n "figure272" -p "|crowd|row9";
	rename -uid "2F28C029-0E58-8170-B8FB-702593BE1560";
	setAttr ".t" -type "double3" 6.193 0 5.099 ;
	setAttr ".r" -type "double3" 0 218.66 0 ;
	setAttr ".s" -type "double3" 1.024 1.024 1.024 ;
createNode transform -n "figure273" -p "|crowd|row9";
	rename -uid "9F7F043A-BAB1-EAC6-BBC0-CAC039F2DE2F";
	setAttr ".t" -type "double3" 6.652 0 4.669 ;
	setAttr ".r" -type "double3" 0 205.42 0 ;
	setAttr ".s" -type "double3" 1.049 1.049 1.049 ;
createNode transform -n "figure274" -p "|crowd|row9";
	rename -uid "F4A96647-B1EA-DE0F-6206-8E0DE3A16FC4";
	setAttr ".t" -type "double3" 7.18 0 4.329 ;
	setAttr ".r" -type "double3" 0 219.68 0 ;
	setAttr ".s" -type "double3" 0.984 0.984 0.984 ;
createNode transform -n "figure275" -p "|crowd|row9";
	rename -uid "EDF96418-F1E5-86F5-B4DD-F5490D7C7DA8";
	setAttr ".t" -type "double3" 7.587 0 3.85 ;
	setAttr ".r" -type "double3" 0 215.56 0 ;
	setAttr ".s" -type "double3" 1.085 1.085 1.085 ;
createNode transform -n "figure276" -p "|crowd|row9";
	rename -uid "9F58BE6B-4EBB-F3C0-90B0-5FE04926F83B";
	setAttr ".t" -type "double3" 8.116 0 3.494 ;
	setAttr ".r" -type "double3" 0 236.49 0 ;
	setAttr ".s" -type "double3" 0.958 0.958 0.958 ;
createNode transform -n "figure277" -p "|crowd|row9";
	rename -uid "0AE2B527-51EB-2E3F-4AE5-CA67957C5B68";
	setAttr ".t" -type "double3" 8.406 0 2.919 ;
	setAttr ".r" -type "double3" 0 242.22 0 ;
	setAttr ".s" -type "double3" 1.052 1.052 1.052 ;
createNode transform -n "figure278" -p "|crowd|row9";
	rename -uid "72DFA4C1-B0D7-611C-AA6A-F0EE7873ABA0";
	setAttr ".t" -type "double3" 8.968 0 2.563 ;
	setAttr ".r" -type "double3" 0 243.09 0 ;
	setAttr ".s" -type "double3" 1.098 1.098 1.098 ;
createNode transform -n "figure279" -p "|crowd|row9";
	rename -uid "89D8A446-64EF-F087-36C4-ED5FF8072F92";
	setAttr ".t" -type "double3" 9.236 0 1.983 ;
	setAttr ".r" -type "double3" 0 224.58 0 ;
	setAttr ".s" -type "double3" 1.018 1.018 1.018 ;
createNode transform -n "figure280" -p "|crowd|row9";
	rename -uid "9E7E18CE-5C0E-B6B1-AD9F-B341DAE9787B";
	setAttr ".t" -type "double3" 9.625 0 1.484 ;
	setAttr ".r" -type "double3" 0 241.84 0 ;
	setAttr ".s" -type "double3" 0.93 0.93 0.93 ;
createNode transform -n "figure281" -p "|crowd|row9";
	rename -uid "FC580207-0B49-F839-4706-00C50112756F";
	setAttr ".t" -type "double3" 9.872 0 0.903 ;
	setAttr ".r" -type "double3" 0 230.84 0 ;
	setAttr ".s" -type "double3" 0.95 0.95 0.95 ;
createNode transform -n "figure282" -p "|crowd|row9";
	rename -uid "2332A67F-8258-84A7-F1AE-937741485A92";
	setAttr ".t" -type "double3" 10.151 0 0.341 ;
	setAttr ".r" -type "double3" 0 253.5 0 ;
	setAttr ".s" -type "double3" 0.965 0.965 0.965 ;
createNode transform -n "figure283" -p "|crowd|row9";
	rename -uid "A7E74512-70B2-FEF7-DC80-0FD8B26B42BC";
	setAttr ".t" -type "double3" 10.444 0 -0.221 ;
	setAttr ".r" -type "double3" 0 236.45 0 ;
	setAttr ".s" -type "double3" 0.943 0.943 0.943 ;
createNode transform -n "figure284" -p "|crowd|row9";
	rename -uid "C6C8A0EA-D97B-13D4-84CB-04B76C38A44D";
	setAttr ".t" -type "double3" 10.612 0 -0.83 ;
	setAttr ".r" -type "double3" 0 257.48 0 ;
	setAttr ".s" -type "double3" 0.963 0.963 0.963 ;
createNode transform -n "row10" -p "crowd";
	rename -uid "9F52AD90-C6B4-007D-2F90-3554B7A913DA";
createNode transform -n "figure285" -p "|crowd|row10";
	rename -uid "4AD4D73C-6CA2-94C8-7F4C-78C1ED51095D";
	setAttr ".t" -type "double3" -11.391 0 -0.626 ;
	setAttr ".r" -type "double3" 0 96.45 0 ;
	setAttr ".s" -type "double3" 1.07 1.07 1.07 ;
createNode transform -n "figure286" -p "|crowd|row10";
	rename -uid "E22853EA-C9C7-B9A6-F90E-CFF1EFCD2EFA";
	setAttr ".t" -type "double3" -11.148 0 -0.052 ;
	setAttr ".r" -type "double3" 0 110.35 0 ;
	setAttr ".s" -type "double3" 0.935 0.935 0.935 ;
createNode transform -n "figure287" -p "|crowd|row10";
	rename -uid "EF93FDB3-16C8-DD74-104B-B5A160AF795C";
	setAttr ".t" -type "double3" -11.003 0 0.558 ;
	setAttr ".r" -type "double3" 0 120.46 0 ;
	setAttr ".s" -type "double3" 1.087 1.087 1.087 ;
createNode transform -n "figure288" -p "|crowd|row10";
	rename -uid "5065691D-C26C-6958-2E0D-E3B58A8FF9FF";
	setAttr ".t" -type "double3" -10.659 0 1.084 ;
	setAttr ".r" -type "double3" 0 123.88 0 ;
	setAttr ".s" -type "double3" 0.966 0.966 0.966 ;
createNode transform -n "figure289" -p "|crowd|row10";
	rename -uid "424D8471-8096-682A-5FEF-883ED9AADE7F";
	setAttr ".t" -type "double3" -10.501 0 1.701 ;
	setAttr ".r" -type "double3" 0 119.73 0 ;
	setAttr ".s" -type "double3" 0.993 0.993 0.993 ;
createNode transform -n "figure290" -p "|crowd|row10";
	rename -uid "B937D6E2-4052-EAEE-6313-8115BB199E08";
	setAttr ".t" -type "double3" -10.028 0 2.145 ;
	setAttr ".r" -type "double3" 0 127.7 0 ;
	setAttr ".s" -type "double3" 0.92 0.92 0.92 ;
createNode transform -n "figure291" -p "|crowd|row10";
	rename -uid "1CB171B1-04E7-6597-E823-9F5B1923E85E";
	setAttr ".t" -type "double3" -9.682 0 2.655 ;
	setAttr ".r" -type "double3" 0 131.5 0 ;
	setAttr ".s" -type "double3" 1.013 1.013 1.013 ;
createNode transform -n "figure292" -p "|crowd|row10";
	rename -uid "F7C30949-7BE5-1707-FDD3-63F6D0E674B4";
	setAttr ".t" -type "double3" -9.346 0 3.172 ;
	setAttr ".r" -type "double3" 0 130 0 ;
	setAttr ".s" -type "double3" 0.905 0.905 0.905 ;
createNode transform -n "figure293" -p "|crowd|row10";
	rename -uid "E35B4EDC-E96E-A904-7AFC-23F348842F14";
	setAttr ".t" -type "double3" -9.039 0 3.72 ;
	setAttr ".r" -type "double3" 0 122.8 0 ;
	setAttr ".s" -type "double3" 1.091 1.091 1.091 ;
createNode transform -n "figure294" -p "|crowd|row10";
	rename -uid "DAC77E72-184D-F9E3-3616-6626F4C31EF9";
	setAttr ".t" -type "double3" -8.575 0 4.137 ;
	setAttr ".r" -type "double3" 0 123.14 0 ;
	setAttr ".s" -type "double3" 1.049 1.049 1.049 ;
createNode transform -n "figure295" -p "|crowd|row10";
	rename -uid "4797662C-AC07-40BB-8BD6-3E9AA1A25D92";
	setAttr ".t" -type "double3" -8.165 0 4.604 ;
	setAttr ".r" -type "double3" 0 128.24 0 ;
	setAttr ".s" -type "double3" 0.959 0.959 0.959 ;
createNode transform -n "figure296" -p "|crowd|row10";
	rename -uid "712976EE-BDEC-E4BD-2809-1779D17CA954";
	setAttr ".t" -type "double3" -7.698 0 5.014 ;
	setAttr ".r" -type "double3" 0 139.87 0 ;
	setAttr ".s" -type "double3" 0.992 0.992 0.992 ;
createNode transform -n "figure297" -p "|crowd|row10";
	rename -uid "54CB4E48-E855-6BF6-FAAB-9879271520AF";
	setAttr ".t" -type "double3" -7.214 0 5.401 ;
	setAttr ".r" -type "double3" 0 147.15 0 ;
	setAttr ".s" -type "double3" 0.927 0.927 0.927 ;
createNode transform -n "figure298" -p "|crowd|row10";
	rename -uid "2EFCAFA5-2988-8AF8-6050-2FB61FEDDDD0";
	setAttr ".t" -type "double3" -6.665 0 5.698 ;
	setAttr ".r" -type "double3" 0 145.72 0 ;
	setAttr ".s" -type "double3" 0.939 0.939 0.939 ;
createNode transform -n "figure299" -p "|crowd|row10";
	rename -uid "632F44E4-9897-2783-F865-2CD039EB0AA2";
	setAttr ".t" -type "double3" -6.22 0 6.15 ;
	setAttr ".r" -type "double3" 0 153.57 0 ;
	setAttr ".s" -type "double3" 1.084 1.084 1.084 ;
createNode transform -n "figure300" -p "|crowd|row10";
	rename -uid "1B135B52-07AB-7E97-EBA0-5C619EA6B535";
	setAttr ".t" -type "double3" -5.699 0 6.496 ;
	setAttr ".r" -type "double3" 0 145.68 0 ;
	setAttr ".s" -type "double3" 0.995 0.995 0.995 ;
createNode transform -n "figure301" -p "|crowd|row10";
	rename -uid "5BB99337-1144-6AC0-7106-9C11B22E7ADD";
	setAttr ".t" -type "double3" -5.135 0 6.766 ;
	setAttr ".r" -type "double3" 0 145.05 0 ;
	setAttr ".s" -type "double3" 0.907 0.907 0.907 ;
createNode transform -n "figure302" -p "|crowd|row10";
	rename -uid "A6D4275F-347A-F241-2022-DE63A295B1EC";
	setAttr ".t" -type "double3" -4.506 0 6.878 ;
	setAttr ".r" -type "double3" 0 150.35 0 ;
	setAttr ".s" -type "double3" 1.061 1.061 1.061 ;
createNode transform -n "figure303" -p "|crowd|row10";
	rename -uid "D423F7A4-D77A-D9CA-22EB-DE38D0932DF8";
	setAttr ".t" -type "double3" -3.989 0 7.265 ;
	setAttr ".r" -type "double3" 0 149.65 0 ;
	setAttr ".s" -type "double3" 0.942 0.942 0.942 ;
createNode transform -n "figure304" -p "|crowd|row10";
	rename -uid "CDBCAFBB-F684-9B7B-04B4-DDA095C9CC69";
	setAttr ".t" -type "double3" -3.354 0 7.323 ;
	setAttr ".r" -type "double3" 0 161.09 0 ;
	setAttr ".s" -type "double3" 1.04 1.04 1.04 ;
createNode transform -n "figure305" -p "|crowd|row10";
	rename -uid "D9DE0399-13BC-1FF0-A98F-E9397D7149E1";
	setAttr ".t" -type "double3" -2.74 0 7.411 ;
	setAttr ".r" -type "double3" 0 164.23 0 ;
	setAttr ".s" -type "double3" 1.079 1.079 1.079 ;
createNode transform -n "figure306" -p "|crowd|row10";
	rename -uid "139C08DC-4CEF-A214-0F88-F167BB5C380E";
	setAttr ".t" -type "double3" -2.157 0 7.636 ;
	setAttr ".r" -type "double3" 0 181.46 0 ;
	setAttr ".s" -type "double3" 0.983 0.983 0.983 ;
createNode transform -n "figure307" -p "|crowd|row10";
	rename -uid "3CCACEEF-F07E-7FDE-CF51-AE485916CACC";
	setAttr ".t" -type "double3" -1.559 0 7.84 ;
	setAttr ".r" -type "double3" 0 182.65 0 ;
	setAttr ".s" -type "double3" 0.997 0.997 0.997 ;
createNode transform -n "figure308" -p "|crowd|row10";
	rename -uid "B9EECE6D-5419-6B6A-1D28-DDA12F073F0F";
	setAttr ".t" -type "double3" -0.937 0 7.9 ;
	setAttr ".r" -type "double3" 0 163.94 0 ;
	setAttr ".s" -type "double3" 1.02 1.02 1.02 ;
createNode transform -n "figure309" -p "|crowd|row10";
	rename -uid "7E7467FC-B90B-E2D2-12D2-EDCCA844B282";
	setAttr ".t" -type "double3" -0.311 0 7.882 ;
	setAttr ".r" -type "double3" 0 185.44 0 ;
	setAttr ".s" -type "double3" 0.94 0.94 0.94 ;
createNode transform -n "figure310" -p "|crowd|row10";
	rename -uid "6FA90CCA-A129-1816-2041-5496EABE6BC0";
	setAttr ".t" -type "double3" 0.311 0 7.889 ;
	setAttr ".r" -type "double3" 0 188.18 0 ;
	setAttr ".s" -type "double3" 0.955 0.955 0.955 ;
createNode transform -n "figure311" -p "|crowd|row10";
	rename -uid "91982DF1-4EE0-1B85-324B-C6FE26D7C200";
	setAttr ".t" -type "double3" 0.925 0 7.758 ;
	setAttr ".r" -type "double3" 0 177.76 0 ;
	setAttr ".s" -type "double3" 1.029 1.029 1.029 ;
createNode transform -n "figure312" -p "|crowd|row10";
	rename -uid "D451915C-30E2-D873-D500-044968A7CCE1";
	setAttr ".t" -type "double3" 1.538 0 7.68 ;
	setAttr ".r" -type "double3" 0 188.71 0 ;
	setAttr ".s" -type "double3" 1.018 1.018 1.018 ;
createNode transform -n "figure313" -p "|crowd|row10";
	rename -uid "33FE1413-63C6-22DF-7C20-81285F5CF423";
	setAttr ".t" -type "double3" 2.17 0 7.71 ;
	setAttr ".r" -type "double3" 0 191.07 0 ;
	setAttr ".s" -type "double3" 0.992 0.992 0.992 ;
createNode transform -n "figure314" -p "|crowd|row10";
	rename -uid "340F9524-F13B-DFBA-92D7-563B5E8C1BC7";
	setAttr ".t" -type "double3" 2.78 0 7.581 ;
	setAttr ".r" -type "double3" 0 193.19 0 ;
	setAttr ".s" -type "double3" 0.976 0.976 0.976 ;
createNode transform -n "figure315" -p "|crowd|row10";
	rename -uid "3A14A2A4-A8EF-A760-86EF-0D69580E396C";
	setAttr ".t" -type "double3" 3.357 0 7.332 ;
	setAttr ".r" -type "double3" 0 183.37 0 ;
	setAttr ".s" -type "double3" 1.01 1.01 1.01 ;
createNode transform -n "figure316" -p "|crowd|row10";
	rename -uid "DB878E60-AFF7-B8C8-4DB1-515FB04A1B60";
	setAttr ".t" -type "double3" 3.93 0 7.098 ;
	setAttr ".r" -type "double3" 0 190.17 0 ;
	setAttr ".s" -type "double3" 1.018 1.018 1.018 ;
createNode transform -n "figure317" -p "|crowd|row10";
	rename -uid "2C084381-DFCA-9DC4-4A07-0C2A2916DC68";
	setAttr ".t" -type "double3" 4.548 0 6.981 ;
	setAttr ".r" -type "double3" 0 205.04 0 ;
	setAttr ".s" -type "double3" 1.005 1.005 1.005 ;
createNode transform -n "figure318" -p "|crowd|row10";
	rename -uid "C86788C3-6B2C-8125-9E18-43F88727E872";
	setAttr ".t" -type "double3" 5.151 0 6.8 ;
	setAttr ".r" -type "double3" 0 200.93 0 ;
	setAttr ".s" -type "double3" 0.947 0.947 0.947 ;
createNode transform -n "figure319" -p "|crowd|row10";
	rename -uid "DA012DBC-375A-FE51-447C-0CF66DC9EB14";
	setAttr ".t" -type "double3" 5.623 0 6.356 ;
	setAttr ".r" -type "double3" 0 214.66 0 ;
	setAttr ".s" -type "double3" 1.09 1.09 1.09 ;
createNode transform -n "figure320" -p "|crowd|row10";
	rename -uid "A35EAA06-6071-C40F-204F-5CDAE4E566AA";
	setAttr ".t" -type "double3" 6.212 0 6.136 ;
	setAttr ".r" -type "double3" 0 218.78 0 ;
	setAttr ".s" -type "double3" 1.081 1.081 1.081 ;
createNode transform -n "figure321" -p "|crowd|row10";
	rename -uid "FB093466-674F-DD0C-B8EB-1E60E8498DE5";
	setAttr ".t" -type "double3" 6.752 0 5.824 ;
	setAttr ".r" -type "double3" 0 203.37 0 ;
	setAttr ".s" -type "double3" 0.978 0.978 0.978 ;
createNode transform -n "figure322" -p "|crowd|row10";
	rename -uid "9834B338-8A0C-A15E-119F-E97C1D53D335";
	setAttr ".t" -type "double3" 7.212 0 5.399 ;
	setAttr ".r" -type "double3" 0 219.75 0 ;
	setAttr ".s" -type "double3" 0.983 0.983 0.983 ;
createNode transform -n "figure323" -p "|crowd|row10";
	rename -uid "B1BCB82B-7DA8-7C28-4BAE-3C7E36B625BB";
	setAttr ".t" -type "double3" 7.625 0 4.928 ;
	setAttr ".r" -type "double3" 0 218.58 0 ;
	setAttr ".s" -type "double3" 0.984 0.984 0.984 ;
createNode transform -n "figure324" -p "|crowd|row10";
	rename -uid "F337F009-0D61-9FDB-600A-BE8D269B5E5C";
	setAttr ".t" -type "double3" 8.195 0 4.636 ;
	setAttr ".r" -type "double3" 0 226.59 0 ;
	setAttr ".s" -type "double3" 1.074 1.074 1.074 ;
createNode transform -n "figure325" -p "|crowd|row10";
	rename -uid "A84013BA-6391-FFEC-D3E0-66406E20B662";
	setAttr ".t" -type "double3" 8.573 0 4.136 ;
	setAttr ".r" -type "double3" 0 235.72 0 ;
	setAttr ".s" -type "double3" 1.036 1.036 1.036 ;
createNode transform -n "figure326" -p "|crowd|row10";
	rename -uid "D8DC7903-EE0A-ACC9-4C42-076BD72142E6";
	setAttr ".t" -type "double3" 8.999 0 3.686 ;
	setAttr ".r" -type "double3" 0 242.56 0 ;
	setAttr ".s" -type "double3" 1.072 1.072 1.072 ;
createNode transform -n "figure327" -p "|crowd|row10";
	rename -uid "2D117458-5745-9752-744C-2EF0AC74E211";
	setAttr ".t" -type "double3" 9.372 0 3.191 ;
	setAttr ".r" -type "double3" 0 219.63 0 ;
	setAttr ".s" -type "double3" 1.023 1.023 1.023 ;
createNode transform -n "figure328" -p "|crowd|row10";
	rename -uid "E0878DD5-1155-3819-9FFB-760E27B5BC4D";
	setAttr ".t" -type "double3" 9.77 0 2.715 ;
	setAttr ".r" -type "double3" 0 235.34 0 ;
	setAttr ".s" -type "double3" 1.016 1.016 1.016 ;
createNode transform -n "figure329" -p "|crowd|row10";
	rename -uid "E970A2E6-6769-7FDF-2C0C-B6F3E43FE1F3";
	setAttr ".t" -type "double3" 10.088 0 2.182 ;
	setAttr ".r" -type "double3" 0 244.59 0 ;
	setAttr ".s" -type "double3" 0.903 0.903 0.903 ;
createNode transform -n "figure330" -p "|crowd|row10";
	rename -uid "289EB613-759E-296B-7311-F62F9CE5839F";
	setAttr ".t" -type "double3" 10.373 0 1.632 ;
	setAttr ".r" -type "double3" 0 244.62 0 ;
	setAttr ".s" -type "double3" 1.074 1.074 1.074 ;
createNode transform -n "figure331" -p "|crowd|row10";
	rename -uid "D8FDD3D8-3B96-A9E6-8E12-077B3FAF4C60";
	setAttr ".t" -type "double3" 10.786 0 1.145 ;
	setAttr ".r" -type "double3" 0 246.19 0 ;
	setAttr ".s" -type "double3" 1.025 1.025 1.025 ;
createNode transform -n "figure332" -p "|crowd|row10";
	rename -uid "00353D02-BCCF-D153-397B-4EFE535C7AAF";
	setAttr ".t" -type "double3" 10.893 0 0.512 ;
	setAttr ".r" -type "double3" 0 252.6 0 ;
	setAttr ".s" -type "double3" 1.084 1.084 1.084 ;
createNode transform -n "figure333" -p "|crowd|row10";
	rename -uid "CFD6E228-72F3-F645-147D-485FA059C705";
	setAttr ".t" -type "double3" 11.089 0 -0.073 ;
	setAttr ".r" -type "double3" 0 238.2 0 ;
	setAttr ".s" -type "double3" 0.991 0.991 0.991 ;
createNode transform -n "figure334" -p "|crowd|row10";
	rename -uid "90640527-AAD6-81DA-19EA-E195891925DC";
	setAttr ".t" -type "double3" 11.322 0 -0.646 ;
	setAttr ".r" -type "double3" 0 252.23 0 ;
	setAttr ".s" -type "double3" 0.924 0.924 0.924 ;
createNode transform -n "stewardsLeft" -p "crowd";
	rename -uid "8BABB60B-E74C-0D49-A849-A7028AE12690";
	setAttr ".t" -type "double3" -11 0 2 ;
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
	setAttr ".t" -type "double3" 11 0 -1 ;
	setAttr ".r" -type "double3" 0 205 0 ;
createNode transform -n "proxies";
	rename -uid "DE3A9E5B-0B9D-3D47-4EF1-5B4452E398F0";
createNode transform -n "proxyFrontLeft" -p "proxies";
	rename -uid "1D2F8244-0460-68EF-4560-DCCDD98608F7";
	setAttr ".t" -type "double3" -7.5 1 6.5 ;
	setAttr ".r" -type "double3" 0 20 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape" -p "proxyFrontLeft";
	rename -uid "E6C93EB4-9F75-B2BD-8A13-DC8D8121D5C3";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "plaza_left";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/plaza_left";
	setAttr ".pyc" -type "string" "crowd.onTranslate";
createNode transform -n "proxyFrontRight" -p "proxies";
	rename -uid "C72A86A9-AFC3-AEF0-7FD0-E246CF39D8D4";
	setAttr ".t" -type "double3" 8 1 5.5 ;
	setAttr ".r" -type "double3" 0 -15 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape1" -p "proxyFrontRight";
	rename -uid "D5780DC1-8D83-C58C-5A9C-20109482C4F0";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "plaza_right";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/plaza_right";
createNode transform -n "proxyStage" -p "proxies";
	rename -uid "1B795119-243A-AA85-3486-EBA3C730C1DA";
	setAttr ".t" -type "double3" 0 1.8 -4 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape2" -p "proxyStage";
	rename -uid "A5897AF3-5AAE-5B5B-B720-218069A2FD41";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "band";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/band";
	setAttr ".pyc" -type "string" "crowd.onTranslate";
createNode transform -n "proxyWest" -p "proxies";
	rename -uid "77D840E2-ADA9-96CF-D6DC-B1F250B1FDD2";
	setAttr ".t" -type "double3" -13 1 -3 ;
	setAttr ".r" -type "double3" 0 40 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape3" -p "proxyWest";
	rename -uid "19D4FEE8-2A86-A875-B815-682A83CC4B68";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "street_west";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/street_west";
createNode transform -n "proxyEast" -p "proxies";
	rename -uid "C1D6357F-6B78-1B70-40A0-EE7634BB6159";
	setAttr ".t" -type "double3" 13.5 1 -5 ;
	setAttr ".r" -type "double3" 0 -40 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape4" -p "proxyEast";
	rename -uid "53676E58-15A4-22BD-24AC-54C82252A915";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "street_east";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/street_east";
	setAttr ".pyc" -type "string" "crowd.onTranslate";
createNode transform -n "proxyBackLeft" -p "proxies";
	rename -uid "94CA43FB-E72E-4E3B-F99D-9851081425EA";
	setAttr ".t" -type "double3" -6 1 -9 ;
	setAttr ".r" -type "double3" 0 10 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape5" -p "proxyBackLeft";
	rename -uid "CA0BE024-41A3-F880-59B2-D079FE7EB162";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "backstage";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/backstage";
createNode transform -n "proxyBackRight" -p "proxies";
	rename -uid "A50A32B4-A330-F568-9A7B-F519D1D0B745";
	setAttr ".t" -type "double3" 6 1 -9 ;
	setAttr ".r" -type "double3" 0 -10 0 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape6" -p "proxyBackRight";
	rename -uid "EE2862BC-A9EC-8496-715A-6A948ADF94E1";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "backstage";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/backstage";
	setAttr ".pyc" -type "string" "crowd.onTranslate";
createNode transform -n "proxyGate" -p "proxies";
	rename -uid "29BCF573-405D-8952-2AED-C9BEE04BD8AF";
	setAttr ".t" -type "double3" 1.5 1 8.5 ;
createNode CrowdProxyVRay -n "crowdProxyVRayShape7" -p "proxyGate";
	rename -uid "30031C00-89C8-6EF0-80BE-D71FA3609FA5";
	setAttr -k off ".v";
	setAttr ".scn" -type "string" "gate";
	setAttr ".vfd" -type "string" "/shots/plaza/vrscene/gate";
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
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure281" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure282" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure283" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure284" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure285" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure286" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure287" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure288" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure289" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure290" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure291" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure292" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure293" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure294" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure295" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure296" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure297" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure298" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure299" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure300" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure301" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure302" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure303" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure304" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure305" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure306" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure307" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure308" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure309" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure310" ;
parent -s -nc -r -add "|crowd|row1|figure7|walkerShape" "figure311" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure312" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure313" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure314" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure315" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure316" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure317" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure318" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure319" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure320" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure321" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure322" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure323" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure324" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure325" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure326" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure327" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure328" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure329" ;
parent -s -nc -r -add "|crowd|row1|figure3|cheererShape" "figure330" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure331" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure332" ;
parent -s -nc -r -add "|crowd|row1|figure1|waverShape" "figure333" ;
parent -s -nc -r -add "|crowd|row1|figure2|standerShape" "figure334" ;
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
	setAttr -s 168 ".dsm";
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
	setAttr -s 44 ".dsm";
	setAttr ".ro" yes;
createNode materialInfo -n "walkerInfo";
	rename -uid "D7DD8C44-2059-3825-980F-9F7333C0C868";
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
	setAttr -s 85 ".dsm";
	setAttr ".ro" yes;
createNode materialInfo -n "waverInfo";
	rename -uid "15B648E9-5A58-1C0C-7910-56C886A4FF6C";
createNode CrowdSwitchShaderVRay -n "cheererSwitch";
	rename -uid "61546E9C-E841-136B-EED7-2399D6C247FA";
	setAttr ".sel" 3;
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
	setAttr -s 49 ".dsm";
	setAttr ".ro" yes;
createNode materialInfo -n "cheererInfo";
	rename -uid "73B545C5-A3F8-4727-B2A8-8FC29033C65F";
createNode lambert -n "stageMat";
	rename -uid "78777353-3FCB-8942-878F-C3521B092AA8";
	setAttr ".c" -type "float3" 0.35 0.3 0.26 ;
createNode shadingEngine -n "stageSG";
	rename -uid "9348962F-2983-D6F5-0C81-9DDFC6F282F5";
	setAttr ".ihi" 0;
	setAttr ".ro" yes;
createNode materialInfo -n "stageInfo";
	rename -uid "FCD237AE-A83E-5B1C-1952-59CBCAA7B1C9";
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
	setAttr -s 6 ".u";
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
connectAttr "|crowd|row1|figure17|standerShape.iog" "standerSG.dsm" -na;
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
connectAttr "|crowd|row2|figure38|standerShape.iog" "standerSG.dsm" -na;
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
connectAttr "|crowd|row3|figure59|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row3|figure60|standerShape.iog" "standerSG.dsm" -na;
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
connectAttr "|crowd|row4|figure86|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure88|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row4|figure89|standerShape.iog" "standerSG.dsm" -na;
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
connectAttr "|crowd|row5|figure118|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure121|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row5|figure122|standerShape.iog" "standerSG.dsm" -na;
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
connectAttr "|crowd|row6|figure153|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure154|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure155|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure156|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row6|figure157|standerShape.iog" "standerSG.dsm" -na;
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
connectAttr "|crowd|row7|figure192|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure193|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row7|figure194|standerShape.iog" "standerSG.dsm" -na;
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
connectAttr "|crowd|row8|figure235|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row8|figure236|standerShape.iog" "standerSG.dsm" -na;
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
connectAttr "|crowd|row9|figure282|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row9|figure283|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure285|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure286|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure290|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure292|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure294|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure297|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure299|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure300|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure302|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure303|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure306|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure307|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure308|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure309|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure310|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure312|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure314|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure315|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure316|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure317|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure319|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure322|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure324|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure325|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure328|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure329|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure331|standerShape.iog" "standerSG.dsm" -na;
connectAttr "|crowd|row10|figure334|standerShape.iog" "standerSG.dsm" -na;
connectAttr "standerSG.msg" "standerInfo.sg";
connectAttr "standerMat.msg" "standerInfo.m";
connectAttr "standerSwitch.op" "standerMat.c";
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
connectAttr "|crowd|row2|figure37|walkerShape.iog" "walkerSG.dsm" -na;
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
connectAttr "|crowd|row8|figure234|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row8|figure237|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure244|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure255|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure256|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure271|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row9|figure272|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row10|figure293|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row10|figure305|walkerShape.iog" "walkerSG.dsm" -na;
connectAttr "|crowd|row10|figure311|walkerShape.iog" "walkerSG.dsm" -na;
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
connectAttr "walkerSwitch.op" "walkerMat.c";
connectAttr "waverMat.oc" "waverSG.ss";
connectAttr "|crowd|row1|figure1|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row1|figure6|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row1|figure9|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row2|figure22|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row2|figure24|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row2|figure28|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row2|figure32|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row2|figure36|waverShape.iog" "waverSG.dsm" -na;
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
connectAttr "|crowd|row4|figure87|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure91|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure99|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure101|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure102|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure106|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure117|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure119|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row5|figure120|waverShape.iog" "waverSG.dsm" -na;
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
connectAttr "|crowd|row7|figure191|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row7|figure195|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row7|figure196|waverShape.iog" "waverSG.dsm" -na;
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
connectAttr "|crowd|row9|figure281|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row9|figure284|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure287|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure289|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure291|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure295|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure296|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure298|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure304|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure313|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure318|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure320|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure321|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure323|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure326|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure327|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure332|waverShape.iog" "waverSG.dsm" -na;
connectAttr "|crowd|row10|figure333|waverShape.iog" "waverSG.dsm" -na;
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
connectAttr "|crowd|row3|figure61|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row3|figure62|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row4|figure82|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row4|figure85|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row4|figure90|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row5|figure92|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row5|figure103|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row5|figure109|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row5|figure112|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row5|figure114|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row6|figure127|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row6|figure129|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row6|figure143|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row6|figure144|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row6|figure152|cheererShape.iog" "cheererSG.dsm" -na;
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
connectAttr "|crowd|row8|figure238|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row9|figure260|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row9|figure263|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row9|figure264|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row9|figure265|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row9|figure273|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row10|figure288|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row10|figure301|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "|crowd|row10|figure330|cheererShape.iog" "cheererSG.dsm" -na;
connectAttr "cheererSG.msg" "cheererInfo.sg";
connectAttr "cheererMat.msg" "cheererInfo.m";
connectAttr "cheererSwitch.op" "cheererMat.c";
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
connectAttr "standerSwitch.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "walkerSwitch.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "waverSwitch.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "cheererSwitch.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "walkerTexturePlace.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "cheererTexturePlace.msg" ":defaultRenderUtilityList1.u" -na;
connectAttr "defaultRenderLayer.msg" ":defaultRenderingList1.r" -na;
connectAttr "walkerTexture.msg" ":defaultTextureList1.tx" -na;
connectAttr "cheererTexture.msg" ":defaultTextureList1.tx" -na;
// End of crowd_shot.ma
